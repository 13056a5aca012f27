#include "src/platform/clock_seed.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

using Words = SeededDraws::Words;

TEST(ClockSeed, HasTheClockWhatPassedAndTheCount) {
  EXPECT_EQ(ClockSeed(0x123456789A, 7, 3), (Words{0x3456789A, 0x12, 7, 3}));
}

TEST(ClockSeed, TheNextIsLater) {
  const Words seed = ClockSeed(1000, UINT32_MAX, 3);
  EXPECT_EQ(SeedAfter(seed, 2), ClockSeed(1000, 1, 4)) << "it goes round";
  EXPECT_EQ(DelayBetween(seed, ClockSeed(1000, 1, 4)), 2U);
}

TEST(ClockSeed, OthersDoNotFollow) {
  const Words seed = ClockSeed(1000, 5, 3);
  EXPECT_EQ(DelayBetween(seed, ClockSeed(1000, 5, 3)), std::nullopt) << "the same";
  EXPECT_EQ(DelayBetween(seed, ClockSeed(1000, 6, 5)), std::nullopt) << "one is left out";
  EXPECT_EQ(DelayBetween(seed, ClockSeed(1001, 6, 4)), std::nullopt) << "of another play";
  EXPECT_EQ(DelayBetween({26}, seed), std::nullopt);
  EXPECT_EQ(DelayBetween(seed, {26}), std::nullopt);
  EXPECT_EQ(SeedAfter({26}, 1), std::nullopt);
}

}  // namespace
}  // namespace orvane
