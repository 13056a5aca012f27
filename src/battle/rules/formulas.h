// The arithmetic of a battle by itself: pure functions of numbers.
#pragma once

#include "src/base/integer.h"

namespace orvane {

// What mastery multiplies a skill by: 1.3 in single precision, widened. Results are floored, so the
// exact value matters.
constexpr double kMasteryFactor = 1.2999999523162842;

constexpr double FactorOf(int use, int master) {
  return use >= master ? kMasteryFactor : 1.0;
}

// A hero's plain attack; `draw` is in [0, 1). May be negative. Overflows in 16 bits.
Int32 FightDamage(Int16 attack, Int16 enemy_defence, Int16 level, double draw);

// A damage spell, its row n from 1; the cost in MP is its power.
Int32 SpellDamage(int n, Int16 cost, Int16 spirit, Int16 level, double factor, double draw);

// A technique, its row n from 1.
Int32 TechniqueDamage(int n, Int16 cost, Int16 spirit, Int16 attack, Int16 enemy_defence,
                      double factor, double draw);

// A plain enemy attack, 0 at the least; `roll` is 0 to 9.
Int32 EnemyAttackDamage(Int16 attack, Int16 roll, Int16 round, Int16 defence);

// What a healing spell gives a hero; `divisor` of his maximum of HP is 8 for the first, 9 for the
// second.
Int16 HealingOf(int n, Int16 max_hp, int divisor, Int16 spirit, double factor);

}  // namespace orvane
