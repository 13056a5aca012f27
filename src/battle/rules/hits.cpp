#include "src/battle/rules/hits.h"

#include "src/battle/rules/action_target.h"
#include "src/battle/scene/battle_drawing.h"

namespace orvane {
namespace {

void Faint(BattleScreen& battle, int hero) {
  battle.state.HeroFainted[hero] = True;
  battle.HeroTabs.SetTabCaption(hero, "気絶");
}

void HitWithMagic(BattleScreen& battle, int slot) {
  State& state = battle.state;
  if (battle.Skills.ListIndex <= LastOneTargetSpell) {
    state.EnemyLife[slot - 1] -= state.MagicDamage[slot - 1];
    EnemyKillCheck(battle, slot);
  } else {
    for (int each = 1; each <= state.EnemyCount; ++each) {
      state.EnemyLife[each - 1] -= state.MagicDamage[each - 1];
      EnemyKillCheck(battle, each);
    }
  }
  // A big enemy takes a spell once more. The balance of the game counts on it.
  if (IsBigFight(state)) {
    state.EnemyLife[slot - 1] -= state.MagicDamage[slot - 1];
    EnemyKillCheck(battle, slot);
  }
}

}  // namespace

void HitEnemies(BattleScreen& battle) {
  State& state = battle.state;
  const int slot = TargetSlot(battle);
  switch (state.ActionKind) {
    case Action::Fight:
      state.EnemyLife[slot - 1] -= state.AttackDamage;
      return EnemyKillCheck(battle, slot);
    case Action::Waza:
      state.EnemyLife[slot - 1] -= state.WazaDamage;
      return EnemyKillCheck(battle, slot);
    case Action::Magic:
      return HitWithMagic(battle, slot);
    default:
      return;
  }
}

void HitHeroes(BattleScreen& battle) {
  State& state = battle.state;
  if (state.ActionKind == Action::BossSpecial || state.ActionKind == Action::LastBossSpecial) {
    for (int hero = 0; hero < 2; ++hero) {
      state.HP[hero] -= state.BreathDamage[hero];
      if (state.HP[hero] < 1) Faint(battle, hero);
    }
    StatusDisplay(battle);
    return;
  }
  const int target = state.EnemyRoll % 2;
  state.HP[target] -= state.EnemyDamage;
  StatusDisplay(battle);
  if (state.HP[target] <= 0) Faint(battle, target);
}

void EnemyKillCheck(BattleScreen& battle, int slot) {
  State& state = battle.state;
  if (state.EnemyLife[slot - 1] > 0) return;
  state.EnemyAlive[slot - 1] = False;
  RedrawCells(battle, SlotCells(slot));
}

}  // namespace orvane
