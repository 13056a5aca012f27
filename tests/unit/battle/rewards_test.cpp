#include "src/battle/rules/rewards.h"

#include <gtest/gtest.h>

#include "src/battle/rules/choice.h"
#include "src/battle/rules/enemy_table.h"
#include "src/battle/rules/formation.h"
#include "src/battle/skill_table.h"

namespace orvane {
namespace {

class Rewards : public testing::Test {
 protected:
  Rewards() {
    FillEnemyTable(state_);
    FillTechniqueTable(state_);
    FillSpellTable(state_);
    state_.Round = 2;
    state_.EnemyKind = 8;
    state_.EnemyCount = 3;
  }

  State state_;
};

TEST_F(Rewards, AnySlotKeepsABattleGoing) {
  EXPECT_FALSE(EnemyLeft(state_));
  for (int slot = 1; slot <= kBigSlot; ++slot) {
    state_.EnemyAlive[slot - 1] = kTrue;
    EXPECT_TRUE(EnemyLeft(state_)) << slot;
    state_.EnemyAlive[slot - 1] = kFalse;
  }
}

TEST_F(Rewards, ExperienceCountsTheGroup) {
  EXPECT_EQ(ExperienceOf(state_), 3 * 236);
  state_.BossFight = kTrue;
  state_.EnemyCount = 1;
  EXPECT_EQ(ExperienceOf(state_), 20000);
}

TEST_F(Rewards, WithoutABookNothingIsTrained) {
  EXPECT_FALSE(TrainByBook(state_, kMan));
  EXPECT_EQ(state_.WazaUse[0], 0);
}

TEST_F(Rewards, AGroupTrainsByItsNumberAndTheRound) {
  state_.BookSkill[kMan] = 3;
  EXPECT_FALSE(TrainByBook(state_, kMan));
  EXPECT_EQ(state_.WazaUse[2], 6);
  EXPECT_EQ(state_.MagicUse[2], 0);
}

TEST_F(Rewards, ADragonTrainsMore) {
  state_.BookSkill[kWoman] = 1;
  state_.EnemyKind = kBoneDragonKind;
  EXPECT_TRUE(TrainByBook(state_, kWoman));
  EXPECT_EQ(state_.MagicUse[0], 20);
  state_.BossFight = kTrue;
  EXPECT_TRUE(TrainByBook(state_, kWoman));
  EXPECT_EQ(state_.MagicUse[0], 60);
}

TEST_F(Rewards, MasteryIsReachedAtItsCount) {
  state_.BookSkill[kMan] = 1;
  state_.WazaUse[0] = 13;
  EXPECT_FALSE(TrainByBook(state_, kMan)) << "19 of 20";
  state_.WazaUse[0] = 14;
  EXPECT_TRUE(TrainByBook(state_, kMan)) << "20 of 20";
}

TEST_F(Rewards, AFaintedHeroComesBackWithOneHP) {
  state_.HeroFainted[kWoman] = kTrue;
  StandUp(state_, kWoman);
  EXPECT_EQ(state_.HP[kWoman], 1);
  EXPECT_EQ(state_.HeroFainted[kWoman], kFalse);
}

}  // namespace
}  // namespace orvane
