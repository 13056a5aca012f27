#include "src/battle/flow/turn_engine.h"

#include "src/battle/battle_screen.h"
#include "src/battle/flow/action_table.h"
#include "src/battle/rules/formation.h"

namespace orvane {
namespace {

void PassToEnemies(BattleScreen& battle) {
  State& state = battle.state;
  for (int hero = 0; hero < 2; ++hero) {
    state.HeroBusy[hero] = kFalse;
    battle.HeroTabs.SetTabEnabled(hero, false);
  }
  DecideEnemyPhase(state, battle.game.services.Luck);
  state.HeroesActed = 0;
}

void AskNextHero(BattleScreen& battle) {
  battle.FightButton.Enabled = true;
  (battle.ActingHero() == 0 ? battle.TechniqueButton : battle.SpellButton).Enabled = true;
  battle.ItemButton.Enabled = true;
  battle.ActionTimer.SetEnabled(false);
}

// The other hero's turn, or the enemies'.
void PassOn(BattleScreen& battle) {
  State& state = battle.state;
  const int other = battle.ActingHero() ^ 1;
  if (state.HeroFainted[other] == kFalse) {
    battle.HeroTabs.SetTab(other);
    battle.HeroTabs.SetTabEnabled(other, true);
  } else {
    battle.HeroTabs.SetTabEnabled(other ^ 1, true);
    battle.HeroTabs.SetTabEnabled(other, false);
  }
  if (state.HeroesActed >= 2) {
    PassToEnemies(battle);
  } else {
    AskNextHero(battle);
  }
}

}  // namespace

void ActionTick(BattleScreen& battle) {
  if (!FindAction(battle.state.ActionKind)) return;
  battle.state.ActionState += 2;
  PlayActionFrame(battle);
}

void PlayActionFrame(BattleScreen& battle) {
  if (const ActionRow* row = FindAction(battle.state.ActionKind)) row->Play(battle, *row);
}

void PlayNumbersFrame(BattleScreen& battle, const ActionRow& row) {
  const int frame = battle.state.ActionState;
  row.MoveNumbers(battle, frame - row.ComputingFrame - 9);
  Randomize(battle.game);
  if (frame == row.ComputingFrame) row.Compute(battle);
}

void EndHeroAction(BattleScreen& battle) {
  PassOn(battle);
  battle.Targets.Clear();
  battle.state.ActionState = 0;
}

}  // namespace orvane
