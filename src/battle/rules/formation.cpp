#include "src/battle/rules/formation.h"

#include "src/core/draw.h"

namespace orvane {
namespace {

constexpr int kMostEnemies = 4;
constexpr int kSlots = 5;
constexpr int kRoundKinds = 5;  // ordinary kinds of a round, one after another in the table
constexpr int kFirstKind = 3;   // after the dragons of the rounds

void RollKind(State& state, Chance& luck) {
  if (state.Round < 1 || state.Round > 3) return;
  state.EnemyKind = Roll(luck, kRoundKinds, kFirstKind + (state.Round - 1) * kRoundKinds);
}

void FillSlot(State& state, int slot, Int32 life) {
  state.EnemyLife[slot - 1] = life;
  state.EnemyAlive[slot - 1] = kTrue;
}

// A dragon's special comes once in five times.
bool RollsSpecial(State& state, Chance& luck) {
  state.BossMove = Roll(luck, 5);
  return state.BossMove == 1;
}

}  // namespace

bool IsBigFight(const State& state) {
  return state.BossFight == kTrue || state.LastBossFight == kTrue ||
         state.EnemyKind == kBoneDragonKind;
}

int EnemyRow(const State& state) {
  if (state.BossFight == kTrue) return state.Round - 1;
  if (state.LastBossFight == kTrue) return kLastBossKind;
  return state.EnemyKind;
}

void FormEnemies(State& state, Chance& luck) {
  RollKind(state, luck);
  state.EnemyCount = Roll(luck, kMostEnemies, 1);
  for (int slot = 1; slot <= kSlots; ++slot) state.EnemyAlive[slot - 1] = kFalse;
  if (IsBigFight(state)) {
    state.EnemyCount = 1;
    return FillSlot(state, kBigSlot, state.EnemyHP[EnemyRow(state)]);
  }
  for (int slot = 1; slot <= state.EnemyCount; ++slot)
    FillSlot(state, slot, state.EnemyHP[state.EnemyKind]);
}

void DecideEnemyPhase(State& state, Chance& luck) {
  state.ActionKind = Action::EnemyAttack;
  if (state.BossFight == kTrue) {
    const bool special = RollsSpecial(state, luck) && state.Round != 1;
    state.EnemyTurns = state.Round == 3 && !special ? 2 : 1;
    if (special) state.ActionKind = Action::BossSpecial;
  } else if (state.LastBossFight == kTrue) {
    const bool special = RollsSpecial(state, luck);
    state.EnemyTurns = special ? 1 : 2;
    if (special) state.ActionKind = Action::LastBossSpecial;
  } else {
    if (state.EnemyKind == kBoneDragonKind) state.EnemyTurns = 2;
    for (int slot = 1; slot <= state.EnemyCount; ++slot) {
      if (state.EnemyAlive[slot - 1] == kTrue) state.EnemyTurns += 1;
    }
  }
}

int SlotX(int slot) {
  return (slot + Quotient(slot, 3)) * 30;
}

int SlotY(int slot) {
  return ((slot % 2 + 1) % 2 + 1) * 90;
}

}  // namespace orvane
