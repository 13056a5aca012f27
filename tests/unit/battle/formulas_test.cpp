#include "src/battle/rules/formulas.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

constexpr double kNearOne = 0.99999994;  // the greatest draw

TEST(Formulas, AFightSpreadsByTheLevel) {
  EXPECT_EQ(int{FightDamage(10, 10, 1, 0)}, 80);
  EXPECT_EQ(int{FightDamage(10, 10, 1, kNearOne)}, 84);
  EXPECT_EQ(int{FightDamage(1, 10, 1, 0)}, -10) << "there is no lower bound";
  EXPECT_THROW(FightDamage(3277, 0, 1, 0), RunError);
}

TEST(Formulas, MasteryIsNotQuiteThreeTenths) {
  EXPECT_EQ(FactorOf(19, 20), 1.0);
  EXPECT_EQ(FactorOf(20, 20), kMasteryFactor);
  EXPECT_EQ(static_cast<double>(1.3f), kMasteryFactor);
}

TEST(Formulas, ASpellIsItsCostAndHalfTheSpirit) {
  EXPECT_EQ(int{SpellDamage(1, 10, 5, 1, 1.0, 0.5)}, 100);
  EXPECT_EQ(int{SpellDamage(1, 10, 5, 1, kMasteryFactor, 0.5)}, 129) << "and not 130";
  EXPECT_EQ(int{SpellDamage(10, 250, 1, 10, 1.0, kNearOne)}, static_cast<int>((250 + .5 + 1) * 35));
}

TEST(Formulas, ATechniqueFloorsTheSpiritButNotItsCost) {
  // Int(3 / 2) + 20 + 5 / 2 = 23.5; times 1 x 4, less 2 x 10
  EXPECT_EQ(int{TechniqueDamage(1, 5, 3, 20, 10, 1.0, 0)}, 74 + 160);
  EXPECT_EQ(int{TechniqueDamage(1, 5, 3, 20, 10, 1.0, kNearOne)}, 74 + 19 + 160);
}

TEST(Formulas, TheLastTechniqueLacksTheLastTerm) {
  EXPECT_EQ(int{TechniqueDamage(10, 160, 0, 10, 0, 1.0, 0)}, 90 * 80);
  EXPECT_LT(int{TechniqueDamage(10, 0, 0, 0, 200, 1.0, 0)}, 0) << "it may heal";
}

TEST(Formulas, ATechniqueFloorsTheWholeBelowZeroToo) {
  // 2.5 x 4 x 1.3 - 2 x 20 = -27.0000005 goes down to -28
  EXPECT_EQ(int{TechniqueDamage(1, 5, 0, 0, 20, kMasteryFactor, 0)}, -28);
}

TEST(Formulas, EightTimesTheAttackOverflows) {
  EXPECT_THROW(TechniqueDamage(1, 4, 0, 4096, 0, 1.0, 0), RunError);
}

TEST(Formulas, OnlyAnEnemyAttackIsBoundedBelow) {
  EXPECT_EQ(int{EnemyAttackDamage(100, 7, 3, 81)}, 181);
  EXPECT_EQ(int{EnemyAttackDamage(7, 0, 1, 200)}, 0);
}

TEST(Formulas, HealingDividesTheHeroesDifferently) {
  EXPECT_EQ(int{HealingOf(3, 120, 8, 12, 1.0)}, 15 + 36);
  EXPECT_EQ(int{HealingOf(3, 80, 9, 12, 1.0)}, 8 + 36);
  EXPECT_EQ(int{HealingOf(8, 100, 8, 10, kMasteryFactor)}, static_cast<int>(92 * kMasteryFactor));
  EXPECT_THROW(HealingOf(10, 100, 8, 3277, 1.0), RunError);
}

}  // namespace
}  // namespace orvane
