#include "src/battle/rules/action_target.h"
#include "src/battle/rules/hits.h"
#include "src/battle/scene/battle_drawing.h"

namespace orvane {
namespace {

constexpr Colour kHealingGreen = Rgb(0, 255, 0);

// Shows a number and moves it along its hop, which ends where it began.
void Hop(BattleScreen& battle, Label& label) {
  const int base = ComputingFrame(battle.state.ActionKind) - 1;
  label.Visible = true;
  label.At.Top += battle.state.ActionState - base - 10;
}

void DrawHitMark(BattleScreen& battle) {
  if (IsBigFight(battle.state)) return DrawEffect(battle, 6, 1, {110, 170, 48, 48});
  const int slot = battle.Targets.ListIndex;
  DrawEffect(battle, 6, 1, {SlotX(slot) + 20, SlotY(slot) + 20, 48, 48});
}

void HopHealing(BattleScreen& battle, Label& label) {
  label.ForeColor = kHealingGreen;
  Hop(battle, label);
}

void HopNumbers(BattleScreen& battle) {
  State& state = battle.state;
  switch (state.ActionKind) {
    case Action::Fight:
      DrawHitMark(battle);
      return Hop(battle, battle.EnemyNumbers[TargetSlot(battle) - 1]);
    case Action::Magic:
      if (IsBigFight(state) || battle.Skills.ListIndex <= LastOneTargetSpell) {
        return Hop(battle, battle.EnemyNumbers[TargetSlot(battle) - 1]);
      }
      for (int slot = 1; slot <= state.EnemyCount; ++slot) {
        if (state.EnemyAlive[slot - 1] == True) Hop(battle, battle.EnemyNumbers[slot - 1]);
      }
      return;
    case Action::Waza:
      return Hop(battle, battle.EnemyNumbers[TargetSlot(battle) - 1]);
    case Action::EnemyAttack:
      return Hop(battle, battle.HeroNumbers[state.EnemyRoll % 2]);
    case Action::Heal:
      HopHealing(battle, battle.HeroNumbers[0]);
      return HopHealing(battle, battle.HeroNumbers[1]);
    case Action::Item:
      return HopHealing(battle, battle.HeroNumbers[battle.Receivers.ListIndex - 1]);
    case Action::BossSpecial:
    case Action::LastBossSpecial:
      Hop(battle, battle.HeroNumbers[0]);
      return Hop(battle, battle.HeroNumbers[1]);
    default:
      return;
  }
}

}  // namespace

void DamageDisplay(BattleScreen& battle) {
  HopNumbers(battle);
  DamageCalc(battle);
}

}  // namespace orvane
