#include "src/battle/flow/victory.h"

#include <string>

#include "src/battle/battle_screen.h"
#include "src/battle/flow/battle_setup.h"
#include "src/battle/rules/formation.h"
#include "src/battle/rules/rewards.h"
#include "src/core/hero_numbers.h"

namespace orvane {
namespace {

constexpr int kNameCut = 6;

// The name as messages show it, with the blanks that a short one has.
std::string ShortName(const State& state, int hero) {
  return LeftChars(state.HeroName[hero].Full(), kNameCut);
}

// A standing hero gains all; a fainted one comes back with a single HP and nothing else.
void Reward(BattleScreen& battle, int hero, Int32 gain) {
  State& state = battle.state;
  if (state.HeroFainted[hero] != kFalse) return StandUp(state, hero);
  state.Exp[hero] += gain;
  Label& message = battle.MasteryMessages[hero];
  message.Visible = TrainByBook(state, hero);
  if (message.Visible) message.Caption = ShortName(state, hero) + " MASTER !";
}

// Takes all levels that the heroes' experience has reached, and tells of them.
void TellLevels(BattleScreen& battle) {
  State& state = battle.state;
  battle.LevelMessages[0].Visible = false;
  battle.LevelMessages[1].Visible = false;
  for (int hero = 0; hero < 2; ++hero) {
    if (!TakeLevels(state, hero)) continue;
    battle.LevelMessages[hero].Visible = true;
    battle.LevelMessages[hero].Caption = ShortName(state, hero) + "LEVEL UP !";
  }
}

}  // namespace

void VictoryCheck(BattleScreen& battle) {
  State& state = battle.state;
  if (EnemyLeft(state)) return;
  battle.VictoryPanel.Visible = true;
  for (CommandButton* button :
       {&battle.FightButton, &battle.SpellButton, &battle.TechniqueButton, &battle.ItemButton}) {
    button->Enabled = false;
  }
  battle.ActionTimer.SetEnabled(false);
  battle.game.sound.Play(kVictorySound);
  if (state.EnemyTurns <= 0) state.HeroesActed = 0;
  state.EnemyKind = EnemyRow(state);
  const Int32 gain = ExperienceOf(state);
  battle.ExperienceGained.Caption = "経験値　" + std::to_string(gain) + "ポイント獲得！";
  Reward(battle, 0, gain);
  Reward(battle, 1, gain);
  TellLevels(battle);
  battle.FleeButton.Enabled = false;
}

void LeaveVictory(BattleScreen& battle) {
  State& state = battle.state;
  if (!battle.VictoryPanel.Visible) return;
  state.ActionKind = Action::Nothing;
  battle.VictoryPanel.Visible = false;
  if (state.LastBossFight == kTrue) state.LastBossDown = kTrue;
  LeaveBattle(battle);
}

}  // namespace orvane
