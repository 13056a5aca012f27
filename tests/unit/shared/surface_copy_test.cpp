// What is found of a surface's changes, and what is kept of it.
#include "src/frontend/shared/surface_copy.h"

#include <gtest/gtest.h>

#include <ostream>
#include <random>

namespace orvane {

static bool operator==(const Rect& one, const Rect& other) {
  return one.X == other.X && one.Y == other.Y && one.Width == other.Width &&
         one.Height == other.Height;
}

static void PrintTo(const Rect& rect, std::ostream* out) {
  *out << rect.X << "," << rect.Y << " " << rect.Width << "x" << rect.Height;
}

namespace {

constexpr int kWidth = 50;
constexpr int kHeight = 20;
const Rect kNothing{};
const Rect kAll{0, 0, kWidth, kHeight};

class SurfaceCopyTest : public testing::Test {
 protected:
  Rect Follow(bool all = false) { return copy_.Follow(surface_, all); }
  // A changed pixel, shown.
  void Show(int x, int y, Colour colour) {
    FillBox(surface_, x, y, x, y, colour);
    surface_.Refresh();
  }
  void ExpectSame() const {
    ASSERT_EQ(copy_.Width(), kWidth);
    ASSERT_EQ(copy_.Height(), kHeight);
    for (size_t i = 0; i < surface_.Shown().size(); ++i) {
      ASSERT_EQ(copy_.Pixels()[i], surface_.Shown()[i] | 0xFF000000) << "pixel " << i;
    }
  }

  Surface surface_{kWidth, kHeight, 0x102030};
  SurfaceCopy copy_;
};

TEST_F(SurfaceCopyTest, HasNothingBeforeTheSurfacePublishesAndThenAll) {
  EXPECT_EQ(Follow(true), kNothing);
  EXPECT_EQ(copy_.Width(), 0);
  surface_.Refresh();
  EXPECT_EQ(Follow(), kAll);
  ExpectSame();
  EXPECT_EQ(Follow(), kNothing);
  EXPECT_EQ(Follow(true), kNothing) << "nothing differs, however closely one looks";
}

TEST_F(SurfaceCopyTest, WhatIsDrawnAndNotPublishedIsNoChange) {
  surface_.Refresh();
  Follow();
  FillBox(surface_, 3, 3, 9, 9, 0xFFFFFF);
  EXPECT_EQ(Follow(true), kNothing);
  ExpectSame();
}

TEST_F(SurfaceCopyTest, FindsTheBoxAroundAllThatDiffers) {
  surface_.Refresh();
  Follow();
  FillBox(surface_, 31, 4, 31, 4, 0xFFFFFF);
  FillBox(surface_, 7, 12, 20, 15, 0x000001);
  surface_.Refresh();
  EXPECT_EQ(Follow(), (Rect{7, 4, 25, 12}));
  ExpectSame();
}

TEST_F(SurfaceCopyTest, FindsEachSinglePixel) {
  surface_.Refresh();
  Follow();
  std::mt19937 chance(5);
  for (int i = 0; i < 500; ++i) {
    const int x = static_cast<int>(chance() % kWidth);
    const int y = static_cast<int>(chance() % kHeight);
    Show(x, y, surface_.At(x, y) ^ (1U << chance() % 24));
    ASSERT_EQ(Follow(), (Rect{x, y, 1, 1}));
  }
  for (const int x : {0, kWidth - 1}) {
    for (const int y : {0, kHeight - 1}) {
      Show(x, y, surface_.At(x, y) ^ 1U);
      EXPECT_EQ(Follow(), (Rect{x, y, 1, 1}));
    }
  }
  ExpectSame();
}

TEST_F(SurfaceCopyTest, MissesNothingOfWhatWasPublishedWhileItDidNotLook) {
  surface_.Refresh();
  Follow();
  Show(4, 5, 0xFFFFFF);
  Show(30, 9, 0xFFFFFF);
  EXPECT_EQ(Follow(), (Rect{4, 5, 27, 5}));
  ExpectSame();
}

TEST_F(SurfaceCopyTest, AnotherSurfaceInItsPlaceIsLookedAtAsAWhole) {
  surface_.Refresh();
  Surface other = surface_;
  Follow();
  Show(4, 5, 0xFFFFFF);
  Follow();
  FillBox(other, 30, 9, 30, 9, 0x405060);
  other.Refresh();
  surface_ = other;
  EXPECT_EQ(Follow(), (Rect{4, 5, 27, 5})) << "one pixel went, one came";
  ExpectSame();
}

TEST_F(SurfaceCopyTest, ASurfaceOfAnotherSizeIsNewAsAWhole) {
  surface_.Refresh();
  Follow();
  surface_ = Surface(30, 10, 0x405060);
  surface_.Refresh();
  EXPECT_EQ(Follow(true), (Rect{0, 0, 30, 10}));
  EXPECT_EQ(copy_.Width(), 30);
  EXPECT_EQ(copy_.Pixels()[0], 0xFF405060);
}

TEST_F(SurfaceCopyTest, ASurfaceOfAnotherHeightIsNewAsAWholeToo) {
  surface_.Refresh();
  Follow();
  surface_ = Surface(kWidth, kHeight + 1, 0x405060);
  surface_.Refresh();
  EXPECT_EQ(Follow(true), (Rect{0, 0, kWidth, kHeight + 1}));
  EXPECT_EQ(copy_.Height(), kHeight + 1);
}

}  // namespace
}  // namespace orvane
