#include "src/battle/rules/formulas.h"

namespace orvane {

Int32 FightDamage(Int16 attack, Int16 enemy_defence, Int16 level, double draw) {
  const Int16 spread = RoundToInt16(Int(draw * level * 5.0));
  return attack * 10 - enemy_defence * 2 + spread;
}

Int32 SpellDamage(int n, Int16 cost, Int16 spirit, Int16 level, double factor, double draw) {
  const double spread = Int(draw * level / 5.0);
  return RoundToInt32(Int((cost + spirit / 2.0 + spread) * factor * (n * 3 + 5)));
}

Int32 TechniqueDamage(int n, Int16 cost, Int16 spirit, Int16 attack, Int16 enemy_defence,
                      double factor, double draw) {
  constexpr int last = 10;
  const double spread = Int(draw * 20 * (n * n));
  const double base = Int(spirit / 2.0) + static_cast<double>(attack) + cost / 2.0;
  const double scale = n == last ? 8 : 4;
  const Int32 damage = RoundToInt32(
      Int(base * factor * n * scale - static_cast<double>(enemy_defence * 2) + spread));
  return n == last ? damage : damage + attack * 8;
}

Int32 EnemyAttackDamage(Int16 attack, Int16 roll, Int16 round, Int16 defence) {
  const Int16 value = attack * 2 + roll * round;
  const Int32 damage = Int32(value) - RoundToInt32(Int(defence / 2.0));
  return damage < 0 ? Int32(0) : damage;
}

Int16 HealingOf(int n, Int16 max_hp, int divisor, Int16 spirit, double factor) {
  const double part = Int(max_hp / static_cast<double>(divisor));
  return RoundToInt16(Int((part + static_cast<double>(spirit * n)) * factor));
}

}  // namespace orvane
