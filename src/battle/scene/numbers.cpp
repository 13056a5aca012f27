#include "src/battle/scene/numbers.h"

#include <string>

#include "src/battle/battle_screen.h"
#include "src/battle/rules/action_results.h"
#include "src/battle/rules/formation.h"
#include "src/battle/scene/battle_drawing.h"

namespace orvane {
namespace {

constexpr Colour kHealingGreen = Rgb(0, 255, 0);

void Hop(Label& label, int step) {
  label.Visible = true;
  label.At.Top += step;
}

void HopGreen(Label& label, int step) {
  label.ForeColor = kHealingGreen;
  Hop(label, step);
}

Label& OverTarget(BattleScreen& battle) {
  return battle.EnemyNumbers[battle.TargetSlot() - 1];
}

void DrawHitMark(BattleScreen& battle) {
  if (IsBigFight(battle.state)) return DrawEffect(battle, 6, 1, {110, 170, 48, 48});
  const int slot = battle.ChosenTarget();
  DrawEffect(battle, 6, 1, {SlotX(slot) + 20, SlotY(slot) + 20, 48, 48});
}

}  // namespace

void WriteOverEnemy(BattleScreen& battle, int slot, int number) {
  battle.EnemyNumbers[slot - 1].Caption = std::to_string(number);
}

void WriteOverHero(BattleScreen& battle, int hero, int number) {
  battle.HeroNumbers[hero].Caption = std::to_string(number);
}

void HopFight(BattleScreen& battle, int step) {
  DrawHitMark(battle);
  Hop(OverTarget(battle), step);
}

void HopTechnique(BattleScreen& battle, int step) {
  Hop(OverTarget(battle), step);
}

void HopSpell(BattleScreen& battle, int step) {
  const State& state = battle.state;
  if (IsBigFight(state) || battle.Chosen().Struck == Targets::One) {
    return Hop(OverTarget(battle), step);
  }
  for (int slot = 1; slot <= state.EnemyCount; ++slot) {
    if (state.EnemyAlive[slot - 1] == kTrue) Hop(battle.EnemyNumbers[slot - 1], step);
  }
}

void HopHealing(BattleScreen& battle, int step) {
  HopGreen(battle.HeroNumbers[kMan], step);
  HopGreen(battle.HeroNumbers[kWoman], step);
}

void HopItem(BattleScreen& battle, int step) {
  HopGreen(battle.HeroNumbers[battle.ChosenReceiver()], step);
}

void HopEnemyAttack(BattleScreen& battle, int step) {
  Hop(battle.HeroNumbers[StruckHero(battle.state)], step);
}

void HopBreath(BattleScreen& battle, int step) {
  Hop(battle.HeroNumbers[kMan], step);
  Hop(battle.HeroNumbers[kWoman], step);
}

void HideEnemyNumber(BattleScreen& battle, int slot) {
  battle.EnemyNumbers[slot - 1].Visible = false;
}

void HideHeroNumbers(BattleScreen& battle) {
  battle.HeroNumbers[kMan].Visible = false;
  battle.HeroNumbers[kWoman].Visible = false;
}

}  // namespace orvane
