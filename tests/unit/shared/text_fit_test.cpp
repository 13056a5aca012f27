// Texts in boxes that are too small for the face at hand.
#include "src/frontend/shared/text_fit.h"

#include <gtest/gtest.h>

#include <cmath>

namespace orvane {
namespace {

constexpr double kOwn = 21;
constexpr double kComfortable = 30;

// A text as long as that, which can be broken anywhere.
CountLines TextOf(double length) {
  return [length](double width) { return static_cast<int>(std::ceil(length / width)); };
}

TEST(TextFit, LinesWithRoomEnoughKeepTheFacesOwnDistance) {
  const Fit fit = FitLines(TextOf(200), 100, 60, kComfortable, kOwn);
  EXPECT_EQ(fit.Squeeze, 1);
  EXPECT_EQ(fit.Pitch, kComfortable);
}

TEST(TextFit, LinesAreNoNearerThanThoseOfTheGamesOwnFaces) {
  EXPECT_EQ(FitLines(TextOf(200), 100, 60, 15, kOwn).Pitch, kOwn);
}

TEST(TextFit, LinesDrawTogetherWhereTheBoxIsLow) {
  const Fit fit = FitLines(TextOf(200), 100, 2 * kOwn, kComfortable, kOwn);
  EXPECT_EQ(fit.Squeeze, 1);
  EXPECT_EQ(fit.Pitch, kOwn);
}

TEST(TextFit, LinesAreMadeNarrowerWhereThatSavesOne) {
  const Fit fit = FitLines(TextOf(114), 100, kOwn, kComfortable, kOwn);
  EXPECT_NEAR(fit.Squeeze, 0.85, 1e-9);
  EXPECT_EQ(fit.Pitch, kOwn);
  EXPECT_EQ(TextOf(114)(100 / fit.Squeeze), 1);
}

TEST(TextFit, NothingIsMadeNarrowerThanCanBeRead) {
  const Fit fit = FitLines(TextOf(2000), 100, kOwn, kComfortable, kOwn);
  EXPECT_EQ(fit.Squeeze, 0.75);
  EXPECT_EQ(fit.Pitch, kOwn);
  EXPECT_EQ(SqueezeInto(200, 100), 0.75);
}

TEST(TextFit, ALineThatHasRoomIsLeftAlone) {
  EXPECT_EQ(SqueezeInto(100, 100), 1);
  EXPECT_EQ(SqueezeInto(100, 80), 0.8);
}

TEST(TextFit, ABoxWithoutRoomForTwoHoldsOneLine) {
  EXPECT_TRUE(IsOneLine("words and words", 25, 12));
  EXPECT_FALSE(IsOneLine("words and words", 26, 12));
  EXPECT_FALSE(IsOneLine("words\nwords", 25, 12));
}

TEST(TextFit, OnlyAFaceThatRisesHigherThanTheGamesOwnIsMovedUp) {
  EXPECT_EQ(ExtraRise(20, 18), 0);
  EXPECT_EQ(ExtraRise(20, 10), 0);
  EXPECT_EQ(ExtraRise(20, 23.5), 5.5);
}

}  // namespace
}  // namespace orvane
