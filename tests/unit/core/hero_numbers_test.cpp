#include "src/core/hero_numbers.h"

#include <gtest/gtest.h>

#include "src/base/error.h"

namespace orvane {
namespace {

TEST(HeroNumbers, AttackAndDefenceAreSums) {
  GameRecord record;
  record.BaseAttack[0] = 8;
  record.WeaponAttack[0] = 14;
  record.BaseDefence[1] = 6;
  record.ArmourDefence[1] = 5;
  SumUp(record);
  EXPECT_EQ(record.Attack[0], 22);
  EXPECT_EQ(record.Defence[0], 0);
  EXPECT_EQ(record.Attack[1], 0);
  EXPECT_EQ(record.Defence[1], 11);
}

TEST(HeroNumbers, ASumOfItsOwnLeavesTheOtherAlone) {
  GameRecord record;
  record.BaseAttack[0] = record.BaseDefence[0] = 5;
  SumUpAttack(record, 0);
  EXPECT_EQ(record.Attack[0], 5);
  EXPECT_EQ(record.Defence[0], 0);
  SumUpDefence(record, 0);
  EXPECT_EQ(record.Defence[0], 5);
}

TEST(HeroNumbers, TheThirdPlaceIsNobodys) {
  GameRecord record;
  record.BaseAttack[2] = record.BaseDefence[2] = 5;
  record.HP[2] = record.MP[2] = 7;
  SumUp(record);
  Settle(record);
  EXPECT_EQ(record.Attack[2], 0);
  EXPECT_EQ(record.Defence[2], 0);
  EXPECT_EQ(record.HP[2], 7);
  EXPECT_EQ(record.MP[2], 7);
}

TEST(HeroNumbers, ASumBeyondSixteenBitsThrows) {
  GameRecord record;
  record.BaseAttack[1] = 32767;
  record.WeaponAttack[1] = 1;
  EXPECT_THROW(SumUp(record), RunError);
}

TEST(HeroNumbers, HPIsHeldOnBothSidesAndMPOnlyAbove) {
  GameRecord record;
  record.MaxHP[0] = record.MaxHP[1] = 100;
  record.MaxMP[0] = record.MaxMP[1] = 10;
  record.HP[0] = -1;
  record.HP[1] = 101;
  record.MP[0] = -1;
  record.MP[1] = 11;
  Settle(record);
  EXPECT_EQ(record.HP[0], 0);
  EXPECT_EQ(record.HP[1], 100);
  EXPECT_EQ(record.MP[0], -1);
  EXPECT_EQ(record.MP[1], 10);
}

TEST(HeroNumbers, CapsAreOnesOwn) {
  GameRecord record;
  record.HP[1] = record.MP[1] = 7;
  record.MaxHP[1] = record.MaxMP[1] = 5;
  CapHP(record, 1);
  EXPECT_EQ(record.HP[1], 5);
  EXPECT_EQ(record.MP[1], 7);
  CapMP(record, 1);
  EXPECT_EQ(record.MP[1], 5);
  record.HP[1] = -3;
  CapHP(record, 1);
  EXPECT_EQ(record.HP[1], -3);
}

TEST(HeroNumbers, AGaugeShowsBoth) {
  EXPECT_EQ(Gauge(7, 120), "7/120");
}

TEST(HeroNumbers, ALevelNeedsItsSquare) {
  EXPECT_EQ(ExperienceToLeave(0, 1), 150);
  EXPECT_EQ(ExperienceToLeave(1, 1), 155);
  EXPECT_EQ(ExperienceToLeave(0, 9), 12150);
  EXPECT_EQ(ExperienceToLeave(1, 9), 12555);
}

TEST(HeroNumbers, OneStepOfExperienceMayBeSeveralLevels) {
  GameRecord record;
  record.Level[0] = record.Level[1] = 1;
  record.Exp[0] = 600;  // leaves level 2 at 600 too
  record.Exp[1] = 154;
  EXPECT_TRUE(TakeLevels(record, 0));
  EXPECT_FALSE(TakeLevels(record, 1));
  EXPECT_EQ(record.Level[0], 3);
  EXPECT_EQ(record.MaxHP[0], 32 + 33);
  EXPECT_EQ(record.MaxMP[0], 7 + 5);
  EXPECT_EQ(record.BaseAttack[0], 2 + 3);
  EXPECT_EQ(record.BaseDefence[0], 2 + 0);
  EXPECT_EQ(record.Spirit[0], 1 + 2);
  EXPECT_EQ(record.Level[1], 1);
}

TEST(HeroNumbers, TheWomanGrowsByARuleOfHerOwn) {
  GameRecord record;
  record.Level[1] = 4;
  record.Exp[1] = 2480;
  EXPECT_TRUE(TakeLevels(record, 1));
  EXPECT_EQ(record.Level[1], 5);
  EXPECT_EQ(record.MaxHP[1], 27);
  EXPECT_EQ(record.MaxMP[1], 11);
  EXPECT_EQ(record.BaseAttack[1], 2);
  EXPECT_EQ(record.BaseDefence[1], 1);
  EXPECT_EQ(record.Spirit[1], 3);
}

TEST(HeroNumbers, GrowthEndsAtItsBound) {
  GameRecord record;
  record.Level[0] = 1;
  record.Exp[0] = 150;
  record.MaxHP[0] = record.MaxMP[0] = 9998;
  EXPECT_TRUE(TakeLevels(record, 0));
  EXPECT_EQ(record.MaxHP[0], 9999);
  EXPECT_EQ(record.MaxMP[0], 9999);
}

}  // namespace
}  // namespace orvane
