#include "src/battle/rules/formation.h"

namespace orvane {

bool IsBigFight(const State& state) {
  return state.BossFight == True || state.LastBossFight == True ||
         state.EnemyKind == BoneDragonKind;
}

int EnemyRow(const State& state) {
  if (state.BossFight == True) return state.Round - 1;
  if (state.LastBossFight == True) return LastBossKind;
  return state.EnemyKind;
}

int SlotX(int slot) {
  return (slot + Quotient(slot, 3)) * 30;
}

int SlotY(int slot) {
  return ((slot % 2 + 1) % 2 + 1) * 90;
}

Rect SlotCells(int slot) {
  return {Quotient(slot, 3) * 3 + 1 - slot % 2, 5 - slot % 2 * 3, 3, 3};
}

}  // namespace orvane
