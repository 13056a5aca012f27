#include "src/frontend/shared/nearest.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

// The battle's commands and tabs.
const Rect kFight = {16, 312, 65, 33};
const Rect kMagic = {80, 312, 65, 33};
const Rect kWaza = {16, 344, 65, 33};
const Rect kItem = {80, 344, 65, 33};
const Rect kFlee = {88, 296, 49, 12};
const Rect kTabs = {168, 288, 281, 22};

TEST(Nearest, GoesAlongRowsAndColumns) {
  EXPECT_EQ(Nearest(kFight, {kMagic, kWaza, kItem, kFlee, kTabs}, Direction::Right), 0);
  EXPECT_EQ(Nearest(kFight, {kMagic, kWaza, kItem, kFlee, kTabs}, Direction::Down), 1);
  EXPECT_EQ(Nearest(kItem, {kFight, kMagic, kWaza, kFlee, kTabs}, Direction::Up), 1);
  EXPECT_EQ(Nearest(kItem, {kFight, kMagic, kWaza, kFlee, kTabs}, Direction::Left), 2);
}

TEST(Nearest, TakesWhatLiesOffTheWayWhereNothingLiesOnIt) {
  EXPECT_EQ(Nearest(kItem, {kFight, kWaza, kTabs}, Direction::Right), 2);
  EXPECT_EQ(Nearest(kFight, {kFlee, kTabs}, Direction::Up), 0);
}

TEST(Nearest, PrefersWhatStandsBesideToWhatIsNearerButOff) {
  const Rect beside = {300, 0, 20, 20};
  const Rect off = {60, 60, 20, 20};
  EXPECT_EQ(Nearest({0, 0, 20, 20}, {off, beside}, Direction::Right), 0) << "much nearer";
  EXPECT_EQ(Nearest({0, 0, 20, 20}, {{60, 120, 20, 20}, beside}, Direction::Right), 1);
}

TEST(Nearest, FindsNothingWhereNothingLiesThatWay) {
  EXPECT_EQ(Nearest(kTabs, {kFight, kMagic}, Direction::Right), std::nullopt);
  EXPECT_EQ(Nearest(kFight, {}, Direction::Down), std::nullopt);
  EXPECT_EQ(Nearest(kFight, {kMagic}, Direction::Down), std::nullopt) << "beside is not below";
}

}  // namespace
}  // namespace orvane
