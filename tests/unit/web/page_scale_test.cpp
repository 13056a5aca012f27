// How large the game is in pages of all sizes.
#include "src/frontend/web/page_scale.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

const std::vector<Extent> kPlaces = {{496, 303}, {454, 396}};
const std::vector<Span> kShown = {{{496, 325}, 30}, {{454, 396}, 30}};
const std::vector<Span> kBare = {{{496, 325}, 0}, {{454, 396}, 0}};

TEST(PageScaleTest, AComputersPageTakesWholeAndHalfSteps) {
  EXPECT_EQ(PageScale({{1280, 864}}, kPlaces, kShown), 2);
  EXPECT_EQ(PageScale({{1280, 684}}, kPlaces, kShown), 1.5);
  EXPECT_EQ(PageScale({{1920, 1044}}, kPlaces, kShown), 2);
  EXPECT_EQ(PageScale({{640, 480}}, kPlaces, kShown), 1);
}

TEST(PageScaleTest, AHandheldIsFilled) {
  PageFacts page{{1170, 1800}};
  page.IsHandheld = true;
  EXPECT_NEAR(PageScale(page, kPlaces, kBare), 1170 / 496.0, 0.001);
  page.Room = {1640, 1900};
  EXPECT_NEAR(PageScale(page, kPlaces, kBare), 1640 / 496.0, 0.001);
  // A step that leaves next to nothing free is worth its sharpness.
  page.Room = {1010, 1900};
  EXPECT_EQ(PageScale(page, kPlaces, kBare), 2);
}

// Menus are wide enough for fingers as far as the display's height leaves them room.
TEST(PageScaleTest, AHandheldsMenusGrowAsTheRestShrinks) {
  PageFacts page{{1170, 1170}};
  page.IsHandheld = true;
  page.Ratio = 3;
  EXPECT_NEAR(PageScale(page, kPlaces, kBare), 1170 / 496.0, 0.001);
  page.Room.Height = 780;
  const double scale = 780 / 396.0;
  EXPECT_NEAR(PageScale(page, kPlaces, kBare), (780 - 1.1 * (72 - 22 * scale)) / 396, 0.001);
  page.Ratio = 1;
  EXPECT_NEAR(PageScale(page, kPlaces, kBare), scale, 0.001);
}

TEST(PageScaleTest, ATinyPageShowsAllOfIt) {
  EXPECT_NEAR(PageScale({{320, 480}}, kPlaces, kShown), 320 / 496.0, 0.001);
  EXPECT_EQ(PageScale({{10, 10}}, kPlaces, kShown), 0.25);
}

TEST(PageScaleTest, FullScreenIsAsLargeAsFits) {
  PageFacts page{{1920, 1080}};
  page.FullScreen = true;
  EXPECT_NEAR(PageScale(page, kPlaces, kBare), 1080 / 396.0, 0.001);
}

TEST(PageScaleTest, TheBrowsersZoomEnlargesAsFarAsThereIsRoom) {
  PageFacts page{{1920, 1000}};
  EXPECT_EQ(PageScale(page, kPlaces, kShown), 2);
  page.Zoom = 1.1;
  EXPECT_EQ(PageScale(page, kPlaces, kShown), 2);
  page.Zoom = 0.5;
  EXPECT_EQ(PageScale(page, kPlaces, kShown), 1);
  page.Zoom = 3;
  EXPECT_NEAR(PageScale(page, kPlaces, kShown), 970 / 396.0, 0.001);
}

}  // namespace
}  // namespace orvane
