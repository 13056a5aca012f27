#include "src/battle/rules/formation.h"

#include <gtest/gtest.h>

#include "src/battle/rules/enemy_table.h"
#include "tests/unit/battle/fixed_chance.h"

namespace orvane {
namespace {

constexpr float kGreatestDraw = 0.99999994F;

class Formation : public testing::Test {
 protected:
  Formation() {
    FillEnemyTable(state_);
    state_.Round = 1;
    state_.EnemyKind = 3;
  }

  State state_;
};

TEST_F(Formation, SlotsZigZag) {
  const int x[] = {30, 60, 120, 150};
  const int y[] = {90, 180, 90, 180};
  for (int slot = 1; slot <= 4; ++slot) {
    EXPECT_EQ(SlotX(slot), x[slot - 1]);
    EXPECT_EQ(SlotY(slot), y[slot - 1]);
  }
  EXPECT_EQ(SlotX(0), 0);
  EXPECT_EQ(SlotY(0), 180);
}

TEST_F(Formation, ADragonIsTheFightsOwn) {
  EXPECT_FALSE(IsBigFight(state_));
  EXPECT_EQ(EnemyRow(state_), 3);
  state_.EnemyKind = kBoneDragonKind;
  EXPECT_TRUE(IsBigFight(state_));
  EXPECT_EQ(EnemyRow(state_), kBoneDragonKind);
  state_.LastBossFight = kTrue;
  EXPECT_EQ(EnemyRow(state_), kLastBossKind);
  state_.BossFight = kTrue;
  state_.Round = 2;
  EXPECT_EQ(EnemyRow(state_), 1);
}

TEST_F(Formation, EachRoundRollsAmongItsFiveKinds) {
  for (int round = 1; round <= 3; ++round) {
    state_.Round = round;
    FixedChance least;
    FormEnemies(state_, least);
    EXPECT_EQ(state_.EnemyKind, 3 + (round - 1) * 5);
    FixedChance most({kGreatestDraw, 0});
    FormEnemies(state_, most);
    EXPECT_EQ(state_.EnemyKind, 7 + (round - 1) * 5);
    EXPECT_EQ(most.Drawn, 2U);
  }
}

TEST_F(Formation, TheLastRoundKeepsItsKind) {
  state_.Round = 4;
  state_.EnemyKind = 15;
  FixedChance luck({kGreatestDraw});
  FormEnemies(state_, luck);
  EXPECT_EQ(state_.EnemyKind, 15);
  EXPECT_EQ(state_.EnemyCount, 4);
  EXPECT_EQ(luck.Drawn, 1U);
}

TEST_F(Formation, AGroupFillsItsSlotsAlone) {
  for (int slot = 1; slot <= 5; ++slot) state_.EnemyAlive[slot - 1] = kTrue;
  FixedChance luck({0, 0.3F});
  FormEnemies(state_, luck);
  EXPECT_EQ(state_.EnemyCount, 2);
  const int alive[] = {kTrue, kTrue, kFalse, kFalse, kFalse};
  for (int slot = 1; slot <= 5; ++slot) EXPECT_EQ(state_.EnemyAlive[slot - 1], alive[slot - 1]);
  EXPECT_EQ(state_.EnemyLife[0], 280);
  EXPECT_EQ(state_.EnemyLife[1], 280);
  EXPECT_EQ(state_.EnemyLife[2], 0);
}

TEST_F(Formation, ABigEnemyStandsAloneInItsSlot) {
  state_.BossFight = kTrue;
  FixedChance luck({0, kGreatestDraw});
  FormEnemies(state_, luck);
  EXPECT_EQ(state_.EnemyCount, 1);
  EXPECT_EQ(state_.EnemyAlive[0], kFalse);
  EXPECT_EQ(state_.EnemyAlive[kBigSlot - 1], kTrue);
  EXPECT_EQ(state_.EnemyLife[kBigSlot - 1], 7000);
}

TEST_F(Formation, EachLivingEnemyActsOnce) {
  state_.EnemyCount = 3;
  state_.EnemyAlive[0] = state_.EnemyAlive[2] = kTrue;
  FixedChance luck;
  DecideEnemyPhase(state_, luck);
  EXPECT_EQ(state_.ActionKind, Action::EnemyAttack);
  EXPECT_EQ(state_.EnemyTurns, 2);
  EXPECT_EQ(luck.Drawn, 0U);
}

TEST_F(Formation, TurnsLeftByTheLastBattleAddUp) {
  state_.EnemyCount = 1;
  state_.EnemyAlive[0] = kTrue;
  state_.EnemyTurns = 2;
  FixedChance luck;
  DecideEnemyPhase(state_, luck);
  EXPECT_EQ(state_.EnemyTurns, 3);
}

TEST_F(Formation, ABoneDragonActsTwiceAndItsSlotIsNotCounted) {
  state_.EnemyKind = kBoneDragonKind;
  state_.EnemyCount = 1;
  state_.EnemyAlive[kBigSlot - 1] = kTrue;
  state_.EnemyTurns = 7;
  FixedChance luck;
  DecideEnemyPhase(state_, luck);
  EXPECT_EQ(state_.EnemyTurns, 2);
}

TEST_F(Formation, ARoundsDragonRollsItsSpecialFromTheSecondOn) {
  struct {
    int Round;
    float Draw;
    int Kind, Turns;
  } const cases[] = {
      {1, 0.2F, Action::EnemyAttack, 1}, {1, 0.5F, Action::EnemyAttack, 1},
      {2, 0.2F, Action::BossSpecial, 1}, {2, 0.5F, Action::EnemyAttack, 1},
      {3, 0.2F, Action::BossSpecial, 1}, {3, 0.5F, Action::EnemyAttack, 2},
  };
  state_.BossFight = kTrue;
  for (const auto& each : cases) {
    state_.Round = each.Round;
    FixedChance luck({each.Draw});
    DecideEnemyPhase(state_, luck);
    EXPECT_EQ(state_.ActionKind, each.Kind) << each.Round << " " << each.Draw;
    EXPECT_EQ(state_.EnemyTurns, each.Turns) << each.Round << " " << each.Draw;
    EXPECT_EQ(luck.Drawn, 1U);
  }
}

TEST_F(Formation, TheLastDragonActsTwiceOrBreathes) {
  state_.LastBossFight = kTrue;
  FixedChance luck({0.39F, 0.4F, 0});
  DecideEnemyPhase(state_, luck);
  EXPECT_EQ(state_.ActionKind, Action::LastBossSpecial);
  EXPECT_EQ(state_.EnemyTurns, 1);
  for (const int roll : {2, 0}) {
    DecideEnemyPhase(state_, luck);
    EXPECT_EQ(state_.BossMove, roll);
    EXPECT_EQ(state_.ActionKind, Action::EnemyAttack);
    EXPECT_EQ(state_.EnemyTurns, 2);
  }
}

}  // namespace
}  // namespace orvane
