#include "src/battle/rules/action_results.h"

#include "src/battle/rules/formation.h"
#include "src/battle/rules/formulas.h"
#include "src/core/draw.h"
#include "src/core/hero_numbers.h"

namespace orvane {
namespace {

double SpellFactor(const State& state, int spell) {
  return FactorOf(state.MagicUse[spell - 1], state.MagicMaster[spell - 1]);
}

void ComputeSpellOn(State& state, const Choice& choice, int slot, double draw) {
  const int n = choice.Skill;
  state.MagicDamage[slot - 1] = SpellDamage(n, state.MagicMP[n - 1], state.Spirit[kWoman],
                                            state.Level[choice.Hero], SpellFactor(state, n), draw);
}

void RollBreath(State& state, Chance& luck, int spread, int on_man, int on_woman) {
  state.BreathDamage[kMan] = Roll(luck, spread, on_man);
  state.BreathDamage[kWoman] = Roll(luck, spread, on_woman);
}

}  // namespace

void ComputeFight(State& state, const Choice& choice, Chance& luck) {
  state.AttackDamage = FightDamage(state.Attack[choice.Hero], state.EnemyDefence[state.EnemyKind],
                                   state.Level[choice.Hero], Rnd(luck));
}

void ComputeTechnique(State& state, const Choice& choice, Chance& luck) {
  const int n = choice.Skill;
  const double factor = FactorOf(state.WazaUse[n - 1], state.WazaMaster[n - 1]);
  state.WazaDamage =
      TechniqueDamage(n, state.WazaMP[n - 1], state.Spirit[kMan], state.Attack[choice.Hero],
                      state.EnemyDefence[state.EnemyKind], factor, Rnd(luck));
}

// The first draw is for a big enemy; in other fights it goes unused, and every target takes a fresh
// one.
void ComputeSpell(State& state, const Choice& choice, Chance& luck) {
  const double draw = Rnd(luck);
  if (IsBigFight(state)) return ComputeSpellOn(state, choice, kBigSlot, draw);
  if (choice.Struck == Targets::One) {
    return ComputeSpellOn(state, choice, choice.Slot, Rnd(luck));
  }
  for (int slot = 1; slot <= state.EnemyCount; ++slot)
    ComputeSpellOn(state, choice, slot, Rnd(luck));
}

void Heal(State& state, const Choice& choice) {
  const int n = choice.Skill;
  const double factor = SpellFactor(state, n);
  const Int16 spirit = state.Spirit[kWoman];
  state.HealAmount[kMan] = HealingOf(n, state.MaxHP[kMan], 8, spirit, factor);
  state.HealAmount[kWoman] = HealingOf(n, state.MaxHP[kWoman], 9, spirit, factor);
  for (int hero = 0; hero < 2; ++hero) {
    state.HP[hero] += state.HealAmount[hero];
    state.HeroFainted[hero] = kFalse;
    CapHP(state, hero);
  }
}

const BattleItem* UseItem(State& state, const Choice& choice) {
  for (const BattleItem& item : kBattleItems) {
    if (state.Items[choice.BagSlot] != item.Number) continue;
    state.HP[choice.Receiver] += item.HP;
    state.MP[choice.Receiver] += item.MP;
    state.HeroFainted[choice.Receiver] = kFalse;
    return &item;
  }
  return nullptr;
}

void ComputeEnemyAttack(State& state) {
  if (state.BossFight == kTrue) state.EnemyKind = state.Round - 1;
  state.EnemyDamage = EnemyAttackDamage(state.EnemyAttack[state.EnemyKind], state.EnemyRoll,
                                        state.Round, state.Defence[StruckHero(state)]);
}

void ComputeLastBreath(State& state, Chance& luck) {
  RollBreath(state, luck, 100, 1200, 1100);
}

void ComputeBreath(State& state, Chance& luck) {
  if (state.Round == 2) RollBreath(state, luck, 50, 350, 340);
  if (state.Round == 3) RollBreath(state, luck, 50, 850, 750);
}

int StruckHero(const State& state) {
  return state.EnemyRoll % 2;
}

}  // namespace orvane
