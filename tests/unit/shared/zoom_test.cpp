#include "src/frontend/shared/zoom.h"

#include <gtest/gtest.h>

#include "src/ui/screen.h"
#include "src/ui/stage.h"

namespace orvane {
namespace {

const std::vector<Extent> kWindows = {{496, 303}, {454, 396}, {403, 444}};

ScreenFacts Display(double width, double height) {
  return {{width, height}, {width, height}, 1, 1};
}

Span Dialog(double width, double height) {
  return {{width, height}, kTitleHeight};
}

TEST(ChooseScale, TakesTheLargestWholeFactorThatLeavesATenthFree) {
  EXPECT_EQ(ChooseScale({1280, 1024}, kWindows), 2);
  EXPECT_EQ(ChooseScale({1920, 1080}, kWindows), 2);
  EXPECT_EQ(ChooseScale({2560, 1440}, kWindows), 3);
}

TEST(ChooseScale, CountsTitleBarAndMenu) {
  const std::vector<Extent> windows = {{100, 100}, {100, 200}};
  EXPECT_EQ(ChooseScale({1000, 430}, windows), 2);
  EXPECT_EQ(ChooseScale({1000, 429}, windows), 1);
}

TEST(ChooseScale, LetsTheWidestDialogFit) {
  EXPECT_EQ(ChooseScale({800, 2000}, {{100, 100}, {400, 100}}), 2);
  EXPECT_EQ(ChooseScale({799, 2000}, {{100, 100}, {400, 100}}), 1);
}

TEST(FirstSpan, IsThatOfTheFirstWindowWithItsMenu) {
  const Span span = FirstSpan(kWindows);
  EXPECT_EQ(span.Inside.Width, 496);
  EXPECT_EQ(span.Inside.Height, 303 + kMenuHeight);
  EXPECT_EQ(span.Title, kTitleHeight);
  EXPECT_EQ(FirstSpan({}).Inside.Width, 0) << "of no window";
}

TEST(InsidesOf, AreThoseOfTheStagesScreensInTheirOrder) {
  Stage stage;
  const orvane::Screen first(stage, "First", "", 300, 200);
  const orvane::Screen second(stage, "Second", "", 100, 400);
  const std::vector<Extent> insides = InsidesOf(stage);
  ASSERT_EQ(insides.size(), 2U);
  EXPECT_EQ(insides[0].Width, 300);
  EXPECT_EQ(insides[0].Height, 200);
  EXPECT_EQ(insides[1].Width, 100);
  EXPECT_EQ(insides[1].Height, 400);
}

TEST(ChooseScale, StaysWithinItsRange) {
  EXPECT_EQ(ChooseScale({320, 200}, kWindows), 1);
  EXPECT_EQ(ChooseScale({20000, 20000}, kWindows), kLargestScale);
  EXPECT_EQ(ChooseScale({1920, 1080}, {}), 1);
}

TEST(ChooseStartScale, IsTheBestWholeOneWhereThatIsLargeEnough) {
  for (const Extent& screen : {Extent{1280, 1024}, {1680, 1050}, {1920, 1080}, {2560, 1440}}) {
    EXPECT_EQ(ChooseStartScale(screen, kWindows), ChooseScale(screen, kWindows)) << screen.Width;
  }
}

TEST(ChooseStartScale, IsAHalfStepAboveOnScreensThatLeaveMuchBare) {
  EXPECT_EQ(ChooseStartScale({1366, 768}, kWindows), 1.5);
  EXPECT_EQ(ChooseStartScale({1366, 728}, kWindows), 1.5) << "less a panel";
  EXPECT_EQ(ChooseStartScale({1600, 900}, kWindows), 1.5);
  EXPECT_EQ(ChooseStartScale({1920, 1200}, kWindows), 2.5);
}

TEST(ChooseStartScale, IsNeverMoreThanFits) {
  EXPECT_EQ(ChooseStartScale({1366, 690}, kWindows), 1) << "a dialog of 444 lines";
  EXPECT_EQ(ChooseStartScale({320, 200}, kWindows), 1);
  EXPECT_EQ(ChooseStartScale({1366, 768}, {}), 1);
}

TEST(FittingScale, IsThatOfTheWindowThatFitsLeast) {
  EXPECT_DOUBLE_EQ(FittingScale({1000, 1000}, {{{500, 100}, 0}, {{100, 400}, 0}}), 2);
  EXPECT_DOUBLE_EQ(FittingScale({1000, 1000}, {{{500, 500}, 0}, {{100, 400}, 0}}), 2);
  EXPECT_DOUBLE_EQ(FittingScale({1000, 1000}, {{{500, 800}, 0}}), 1.25);
}

TEST(FittingScale, LeavesTheTitleBarItsHeight) {
  EXPECT_DOUBLE_EQ(FittingScale({1000, 1000 + kTitleHeight}, {Dialog(100, 400)}), 2.5);
}

TEST(FittingScale, NeverShrinksAWindow) {
  EXPECT_DOUBLE_EQ(FittingScale({100, 100}, {Dialog(200, 200)}), 1);
}

TEST(Zoom, StartsWithTheBestScaleOrTheOneGiven) {
  EXPECT_DOUBLE_EQ(Zoom(Display(1920, 1080), {}, kWindows).ScaleFor({}), 2);
  EXPECT_DOUBLE_EQ(Zoom(Display(1366, 768), {}, kWindows).ScaleFor({}), 1.5);
  EXPECT_DOUBLE_EQ(Zoom(Display(1920, 1080), 1.25, kWindows).ScaleFor({}), 1.25);
}

TEST(Zoom, GoesInHalvesAndBackToTheBest) {
  Zoom zoom(Display(1920, 1080), 1.25, kWindows);
  zoom.Enlarge();
  EXPECT_DOUBLE_EQ(zoom.ScaleFor({}), 1.5);
  zoom.Enlarge();
  EXPECT_DOUBLE_EQ(zoom.ScaleFor({}), 2);
  zoom.Reduce();
  EXPECT_DOUBLE_EQ(zoom.ScaleFor({}), 1.5);
  zoom.Reset();
  EXPECT_DOUBLE_EQ(zoom.ScaleFor({}), 2);
}

TEST(Zoom, StopsWhereTheFirstWindowWouldNotFitAndAtItsDrawnSize) {
  Zoom zoom(Display(1920, 1080), {}, kWindows);
  for (int i = 0; i < 10; ++i) zoom.Enlarge();
  EXPECT_DOUBLE_EQ(zoom.ScaleFor({}), 3);
  for (int i = 0; i < 10; ++i) zoom.Reduce();
  EXPECT_DOUBLE_EQ(zoom.ScaleFor({}), 1);
}

TEST(Zoom, GivesWayToAWindowThatIsTooHighForIt) {
  Zoom zoom(Display(1920, 1080), {}, kWindows);
  zoom.Enlarge();
  zoom.Enlarge();
  EXPECT_DOUBLE_EQ(zoom.ScaleFor({Dialog(496, 303)}), 3);
  EXPECT_DOUBLE_EQ(zoom.ScaleFor({Dialog(496, 303), Dialog(420, 420)}), 2.5);
}

TEST(Zoom, DoesNotFallBelowWhatThePlayerAskedForAtTheStart) {
  EXPECT_DOUBLE_EQ(Zoom(Display(640, 480), 2, kWindows).ScaleFor({Dialog(403, 444)}), 2);
}

TEST(Zoom, FillsWhatAWindowHasBeenGivenAndNoMoreThanLetsTheOthersFit) {
  const Zoom zoom(Display(1366, 768), {}, kWindows);
  const Span tile = {{496, 321}, kTitleHeight, Extent{1362, 744}};
  EXPECT_DOUBLE_EQ(zoom.ScaleFor({tile}), 744.0 / 321);
  EXPECT_DOUBLE_EQ(zoom.ScaleFor({{tile.Inside, kTitleHeight, Extent{680, 744}}}), 680.0 / 496);
  EXPECT_DOUBLE_EQ(zoom.ScaleFor({{tile.Inside, kTitleHeight, Extent{300, 744}}}), 1);
  EXPECT_DOUBLE_EQ(zoom.ScaleFor({tile, Dialog(403, 444)}), (768.0 - kTitleHeight) / 444);
}

TEST(Zoom, FillsTheFullScreenWhateverTheScaleOfWindows) {
  Zoom zoom(Display(1920, 1080), 1, kWindows);
  zoom.SetFullScreen(true);
  EXPECT_DOUBLE_EQ(zoom.ScaleFor({{{480, 270}, 0}}), 4);
  zoom.SetFullScreen(false);
  EXPECT_DOUBLE_EQ(zoom.ScaleFor({{{480, 270}, 0}}), 1);
}

}  // namespace
}  // namespace orvane
