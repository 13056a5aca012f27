#include "src/battle/flow/victory.h"

#include <string>

#include "src/battle/battle_screen.h"
#include "src/battle/flow/leaving.h"
#include "src/battle/rules/formation.h"
#include "src/core/hero_numbers.h"

namespace orvane {
namespace {

constexpr int kNameCut = 6;

bool EnemyLeft(const State& state) {
  for (int index = 0; index < BigSlot; ++index) {
    if (state.EnemyAlive[index] != False) return true;
  }
  return false;
}

// The name as messages show it, with the blanks that a short one has.
std::string ShortName(const State& state, int hero) {
  return LeftChars(state.HeroName[hero].Full(), kNameCut);
}

// A standing hero gains all; a fainted one comes back with a single HP and nothing else.
void Reward(BattleScreen& battle, int hero, Int32 gain) {
  State& state = battle.state;
  if (state.HeroFainted[hero] == False) {
    state.Exp[hero] += gain;
    ProficiencyGain(battle, hero);
  } else {
    state.HP[hero] = 1;
    state.HeroFainted[hero] = False;
  }
}

Int16 ProficiencyOfFight(const State& state) {
  if (state.BossFight == True) return state.Round * 20;
  if (state.EnemyKind == BoneDragonKind) return 20;
  return state.EnemyCount * state.Round;
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
  battle.game.sound.Play("snd7");
  if (state.EnemyTurns <= 0) state.HeroesActed = 0;
  state.EnemyKind = EnemyRow(state);
  const Int32 gain = state.EnemyExp[state.EnemyKind] * state.EnemyCount;
  battle.ExperienceGained.Caption = "経験値　" + std::to_string(gain) + "ポイント獲得！";
  Reward(battle, 0, gain);
  Reward(battle, 1, gain);
  LevelUp(battle);
}

void ProficiencyGain(BattleScreen& battle, int hero) {
  State& state = battle.state;
  battle.MasteryMessages[hero].Visible = false;
  if (state.BookSkill[hero] <= 0) return;
  const int skill = state.BookSkill[hero] - 1;
  Int16& use = hero == 0 ? state.WazaUse[skill] : state.MagicUse[skill];
  use += ProficiencyOfFight(state);
  if (use < state.WazaMaster[skill]) return;
  battle.MasteryMessages[hero].Caption = ShortName(state, hero) + " MASTER !";
  battle.MasteryMessages[hero].Visible = true;
}

void LevelUp(BattleScreen& battle) {
  State& state = battle.state;
  battle.LevelMessages[0].Visible = false;
  battle.LevelMessages[1].Visible = false;
  for (int hero = 0; hero < 2; ++hero) {
    if (!TakeLevels(state, hero)) continue;
    battle.LevelMessages[hero].Visible = true;
    battle.LevelMessages[hero].Caption = ShortName(state, hero) + "LEVEL UP !";
  }
  battle.FleeButton.Enabled = false;
}

void LeaveVictory(BattleScreen& battle) {
  State& state = battle.state;
  if (!battle.VictoryPanel.Visible) return;
  state.ActionKind = Action::None;
  battle.VictoryPanel.Visible = false;
  LetGoAndSilence(battle);
  if (state.LastBossFight == True) state.LastBossDown = True;
  battle.MusicTimer.SetEnabled(false);
  battle.game.stage.Hide(battle);
  FreeCommands(battle);
  battle.game.stage.Show(battle.game.Main);
}

}  // namespace orvane
