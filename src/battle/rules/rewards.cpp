#include "src/battle/rules/rewards.h"

#include "src/battle/rules/choice.h"
#include "src/battle/rules/formation.h"

namespace orvane {
namespace {

Int16 ProficiencyOf(const State& state) {
  if (state.BossFight == kTrue) return state.Round * 20;
  if (state.EnemyKind == kBoneDragonKind) return 20;
  return state.EnemyCount * state.Round;
}

}  // namespace

bool EnemyLeft(const State& state) {
  for (int slot = 1; slot <= kBigSlot; ++slot) {
    if (state.EnemyAlive[slot - 1] != kFalse) return true;
  }
  return false;
}

Int32 ExperienceOf(const State& state) {
  return state.EnemyExp[EnemyRow(state)] * state.EnemyCount;
}

bool TrainByBook(State& state, int hero) {
  if (state.BookSkill[hero] <= 0) return false;
  const int skill = state.BookSkill[hero] - 1;
  Int16& use = hero == kMan ? state.WazaUse[skill] : state.MagicUse[skill];
  use += ProficiencyOf(state);
  return use >= state.WazaMaster[skill];
}

void StandUp(State& state, int hero) {
  state.HP[hero] = 1;
  state.HeroFainted[hero] = kFalse;
}

}  // namespace orvane
