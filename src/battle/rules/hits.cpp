#include "src/battle/rules/hits.h"

#include "src/battle/rules/action_results.h"
#include "src/battle/rules/formation.h"
#include "src/core/hero_numbers.h"

namespace orvane {
namespace {

void Hit(State& state, int slot, Int32 damage, std::vector<int>& down) {
  state.EnemyLife[slot - 1] -= damage;
  if (state.EnemyLife[slot - 1] > 0) return;
  state.EnemyAlive[slot - 1] = kFalse;
  down.push_back(slot);
}

void HitBySpellIn(State& state, int slot, std::vector<int>& down) {
  Hit(state, slot, state.MagicDamage[slot - 1], down);
}

void FaintWithoutHP(State& state, int hero, std::vector<int>& fainted) {
  if (state.HP[hero] > 0) return;
  state.HeroFainted[hero] = kTrue;
  fainted.push_back(hero);
}

}  // namespace

std::vector<int> HitByFight(State& state, const Choice& choice) {
  std::vector<int> down;
  Hit(state, choice.Slot, state.AttackDamage, down);
  return down;
}

std::vector<int> HitByTechnique(State& state, const Choice& choice) {
  std::vector<int> down;
  Hit(state, choice.Slot, state.WazaDamage, down);
  return down;
}

std::vector<int> HitBySpell(State& state, const Choice& choice) {
  std::vector<int> down;
  if (choice.Struck == Targets::One) {
    HitBySpellIn(state, choice.Slot, down);
  } else {
    for (int slot = 1; slot <= state.EnemyCount; ++slot) HitBySpellIn(state, slot, down);
  }
  // A big enemy takes a spell once more. The balance of the game counts on it.
  if (IsBigFight(state)) HitBySpellIn(state, choice.Slot, down);
  return down;
}

std::vector<int> HitByEnemy(State& state) {
  const int hero = StruckHero(state);
  std::vector<int> fainted;
  state.HP[hero] -= state.EnemyDamage;
  Settle(state);
  FaintWithoutHP(state, hero, fainted);
  return fainted;
}

std::vector<int> HitByBreath(State& state) {
  std::vector<int> fainted;
  for (int hero = 0; hero < 2; ++hero) {
    state.HP[hero] -= state.BreathDamage[hero];
    FaintWithoutHP(state, hero, fainted);
  }
  Settle(state);
  return fainted;
}

}  // namespace orvane
