#include "src/battle/rules/hits.h"

#include <gtest/gtest.h>

#include "src/base/error.h"
#include "src/battle/rules/formation.h"

namespace orvane {
namespace {

using Slots = std::vector<int>;

class Hits : public testing::Test {
 protected:
  Hits() {
    state_.EnemyKind = 3;
    state_.EnemyCount = 3;
    for (int slot = 1; slot <= 3; ++slot) {
      state_.EnemyLife[slot - 1] = 100;
      state_.EnemyAlive[slot - 1] = kTrue;
      state_.MagicDamage[slot - 1] = 40;
    }
    for (int hero = 0; hero < 2; ++hero) state_.HP[hero] = state_.MaxHP[hero] = 50;
  }

  void StandAgainstABigEnemy() {
    state_.EnemyKind = kBoneDragonKind;
    state_.EnemyCount = 1;
    state_.EnemyLife[kBigSlot - 1] = 100;
    state_.EnemyAlive[kBigSlot - 1] = kTrue;
    state_.MagicDamage[kBigSlot - 1] = 40;
  }

  State state_;
};

TEST_F(Hits, AnEnemyFallsWhenNoLifeIsLeft) {
  state_.AttackDamage = 99;
  EXPECT_EQ(HitByFight(state_, {.Slot = 2}), Slots{});
  EXPECT_EQ(state_.EnemyLife[1], 1);
  EXPECT_EQ(state_.EnemyAlive[1], kTrue);
  state_.AttackDamage = 1;
  EXPECT_EQ(HitByFight(state_, {.Slot = 2}), Slots{2});
  EXPECT_EQ(state_.EnemyAlive[1], kFalse);
  EXPECT_EQ(state_.EnemyAlive[0], kTrue);
}

TEST_F(Hits, ATechniqueBelowZeroHeals) {
  state_.AttackDamage = 1000;
  state_.WazaDamage = -20;
  EXPECT_EQ(HitByTechnique(state_, {.Slot = 1}), Slots{});
  EXPECT_EQ(state_.EnemyLife[0], 120);
}

TEST_F(Hits, ASpellOnOneLeavesTheOthersAlone) {
  EXPECT_EQ(HitBySpell(state_, {.Struck = Targets::One, .Slot = 3}), Slots{});
  EXPECT_EQ(state_.EnemyLife[0], 100);
  EXPECT_EQ(state_.EnemyLife[2], 60);
}

TEST_F(Hits, ASpellOnAllTellsOfTheDeadAgain) {
  state_.EnemyLife[0] = -5;
  state_.EnemyAlive[0] = kFalse;
  state_.EnemyLife[2] = 40;
  EXPECT_EQ(HitBySpell(state_, {.Struck = Targets::All, .Slot = -1}), (Slots{1, 3}));
  EXPECT_EQ(state_.EnemyLife[0], -45);
  EXPECT_EQ(state_.EnemyLife[1], 60);
  EXPECT_EQ(state_.EnemyAlive[2], kFalse);
}

TEST_F(Hits, ABigEnemyTakesATargetedSpellTwice) {
  StandAgainstABigEnemy();
  EXPECT_EQ(HitBySpell(state_, {.Struck = Targets::One, .Slot = kBigSlot}), Slots{});
  EXPECT_EQ(state_.EnemyLife[kBigSlot - 1], 20);
}

TEST_F(Hits, ABigEnemyTakesASpellOnAllOnce) {
  StandAgainstABigEnemy();
  EXPECT_EQ(HitBySpell(state_, {.Struck = Targets::All, .Slot = kBigSlot}), Slots{});
  EXPECT_EQ(state_.EnemyLife[kBigSlot - 1], 60);
  EXPECT_EQ(state_.EnemyLife[0], 60) << "and slot 1 as well, where nobody stands";
}

TEST_F(Hits, WithoutATargetNothingIsHit) {
  EXPECT_THROW(HitByFight(state_, {.Slot = -1}), RunError);
}

TEST_F(Hits, AnEnemyHitsOneHero) {
  state_.EnemyRoll = 1;
  state_.EnemyDamage = 20;
  EXPECT_EQ(HitByEnemy(state_), Slots{});
  EXPECT_EQ(state_.HP[kMan], 50);
  EXPECT_EQ(state_.HP[kWoman], 30);
  state_.EnemyDamage = 31;
  EXPECT_EQ(HitByEnemy(state_), Slots{kWoman});
  EXPECT_EQ(state_.HP[kWoman], 0) << "and not below";
  EXPECT_EQ(state_.HeroFainted[kWoman], kTrue);
  EXPECT_EQ(state_.HeroFainted[kMan], kFalse);
}

TEST_F(Hits, ABreathHitsBoth) {
  state_.BreathDamage[kMan] = 50;
  state_.BreathDamage[kWoman] = 49;
  EXPECT_EQ(HitByBreath(state_), Slots{kMan});
  EXPECT_EQ(state_.HP[kMan], 0);
  EXPECT_EQ(state_.HP[kWoman], 1);
  EXPECT_EQ(HitByBreath(state_), (Slots{kMan, kWoman}));
  EXPECT_EQ(state_.HP[kMan], 0) << "and not below";
  EXPECT_EQ(state_.HP[kWoman], 0);
}

TEST_F(Hits, AHitSettlesTheNumbersOfBoth) {
  state_.BaseAttack[kMan] = 3;
  state_.MP[kWoman] = 5;
  state_.EnemyDamage = 0;
  HitByEnemy(state_);
  EXPECT_EQ(state_.Attack[kMan], 3);
  EXPECT_EQ(state_.MP[kWoman], 0);
}

}  // namespace
}  // namespace orvane
