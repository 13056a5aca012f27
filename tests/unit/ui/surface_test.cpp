// What a surface holds, shows and shares.
#include "src/ui/surface.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdint>

#include "src/base/error.h"

namespace orvane {
namespace {

TEST(Surface, ShowsOnlyWhatHasBeenPublished) {
  Surface surface(4, 4, 7);
  surface.Refresh();
  FillBox(surface, 1, 1, 1, 1, 9);
  EXPECT_EQ(surface.At(1, 1), 9u);
  EXPECT_EQ(surface.ShownAt(1, 1), 7u);
  const uint64_t before = surface.Revision();
  surface.Refresh();
  EXPECT_EQ(surface.ShownAt(1, 1), 9u);
  EXPECT_GT(surface.Revision(), before);
  const uint64_t after = surface.Revision();
  surface.Refresh();
  EXPECT_EQ(surface.Revision(), after) << "nothing new was drawn";
}

TEST(Surface, CopiesPartWhenOneIsDrawnOn) {
  Surface one(2, 2, 1);
  Surface other = one;
  FillBox(other, 0, 0, 1, 1, 2);
  EXPECT_EQ(one.At(0, 0), 1u);
  EXPECT_EQ(other.At(0, 0), 2u);
}

TEST(CopyPart, LeavesEveryPixelBesideThePartAlone) {
  constexpr int width = 5;
  constexpr int height = 6;
  for (const Bounds& part : {Bounds{1, 2, 4, 4}, {0, 0, 5, 5}, {0, 1, 5, 6}, {4, 5, 5, 6}}) {
    const Surface::Pixels from(width * height, 1);
    Surface::Pixels to(width * height, 2);
    CopyPart(from, to, width, part);
    for (int i = 0; i < width * height; ++i) {
      const int x = i % width;
      const int y = i / width;
      const bool within = x >= part.Left && x < part.Right && y >= part.Top && y < part.Bottom;
      EXPECT_EQ(to[static_cast<size_t>(i)], within ? 1u : 2u) << x << ", " << y;
    }
  }
}

TEST(Surface, AnswersNothingOutside) {
  EXPECT_THROW(static_cast<void>(Surface(2, 2).At(2, 0)), RunError);
}

TEST(Surface, TellsWhereItHasBeenDrawnOn) {
  Surface surface(20, 10);
  EXPECT_EQ(surface.TakeTouched().Right, 20) << "a new one wholly";
  EXPECT_TRUE(surface.TakeTouched().IsEmpty());
  FillBox(surface, 12, 4, 10, 3, 1);
  BitBlt(surface, -2, 6, 5, 2, Surface(5, 5), 0, 0, Blit::Copy);
  const Bounds touched = surface.TakeTouched();
  EXPECT_EQ(touched.Left, 0);
  EXPECT_EQ(touched.Top, 3);
  EXPECT_EQ(touched.Right, 13);
  EXPECT_EQ(touched.Bottom, 8);
}

TEST(Surface, IsTouchedWithinItsEdgesAlone) {
  const auto touched = [](const auto& draw) {
    Surface surface(12, 10);
    surface.TakeTouched();
    FillBox(surface, 5, 6, 5, 6, 1);
    draw(surface);
    const Bounds part = surface.TakeTouched();
    return std::array{part.Left, part.Top, part.Right, part.Bottom};
  };
  const std::array box{5, 6, 6, 7};
  const Surface source(8, 8);
  EXPECT_EQ(touched([](Surface& surface) { DrawCircle(surface, 10, 8, 5, 1); }),
            (std::array{5, 3, 12, 10}));
  EXPECT_EQ(
      touched([&](Surface& surface) { BitBlt(surface, 50, 2, 4, 4, source, 0, 0, Blit::Copy); }),
      box);
  EXPECT_EQ(
      touched([&](Surface& surface) { BitBlt(surface, 2, 50, 4, 4, source, 0, 0, Blit::Copy); }),
      box);
  EXPECT_EQ(touched([&](Surface& surface) {
              StretchBlt(surface, {50, 2, 4, 4}, source, {0, 0, 8, 8}, Blit::Copy);
            }),
            box);
  EXPECT_EQ(touched([&](Surface& surface) {
              StretchBlt(surface, {2, 50, 4, 4}, source, {0, 0, 8, 8}, Blit::Copy);
            }),
            box);
  EXPECT_EQ(touched([](Surface& surface) { FillBox(surface, 20, 0, 30, 4, 1); }), box);
}

TEST(Surface, RefreshShowsTheChangedPartAlone) {
  Surface surface(8, 8, 5);
  surface.Refresh();
  FillBox(surface, 2, 3, 4, 5, 7);
  EXPECT_EQ(surface.ShownAt(3, 4), 5U);
  surface.Refresh();
  for (int y = 0; y < 8; ++y) {
    for (int x = 0; x < 8; ++x) EXPECT_EQ(surface.ShownAt(x, y), surface.At(x, y));
  }
}

TEST(Surface, TellsWhatHasChangedSinceTheRevisionBefore) {
  Surface surface(8, 8, 5);
  surface.Refresh();
  const uint64_t first = surface.Revision();
  FillBox(surface, 2, 3, 4, 5, 7);
  EXPECT_TRUE(surface.ChangedSince(first).IsEmpty()) << "it is not shown yet";
  surface.Refresh();
  const uint64_t second = surface.Revision();
  const Bounds part = surface.ChangedSince(first);
  EXPECT_EQ(part.Left, 2);
  EXPECT_EQ(part.Top, 3);
  EXPECT_EQ(part.Right, 5);
  EXPECT_EQ(part.Bottom, 6);
  FillBox(surface, 0, 0, 0, 0, 7);
  surface.Refresh();
  EXPECT_EQ(surface.ChangedSince(first).Right, 8) << "of what is longer ago nothing is known";
  EXPECT_EQ(surface.ChangedSince(second).Right, 1);
  surface.Refresh();
  EXPECT_EQ(surface.ChangedSince(second).Right, 1) << "nothing was drawn, so nothing was published";
}

TEST(Surface, AnotherInItsPlaceIsNothingThatWasShownBefore) {
  Surface surface(4, 4);
  const Surface other = surface;
  surface.Refresh();
  const uint64_t shown = surface.Revision();
  surface = other;
  EXPECT_GT(surface.Revision(), shown);
  EXPECT_EQ(surface.ChangedSince(shown).Right, 4);
  FillBox(surface, 0, 0, 0, 0, 7);
  surface.Refresh();
  EXPECT_EQ(surface.ChangedSince(shown).Right, 4);
}

TEST(Surface, KnowsWithWhomItSharesPixels) {
  const Surface first(4, 4);
  Surface second = first;
  EXPECT_TRUE(second.SharesPixelsWith(first));
  FillBox(second, 0, 0, 0, 0, 1);
  EXPECT_FALSE(second.SharesPixelsWith(first));
}

// A 2 x 2 surface that counts how often its pixels are made.
Surface Made(int& times) {
  return {2, 2, [&times] {
            ++times;
            return Surface::Pixels{1, 2, 3, 4};
          }};
}

TEST(Surface, IsMadeOnceWhenACopyIsFirstLookedAt) {
  int times = 0;
  const Surface sheet = Made(times);
  Surface copy = sheet;
  copy.Refresh();
  EXPECT_EQ(times, 0) << "to be shown where nobody looks";
  EXPECT_EQ(copy.ShownAt(1, 0), 2U);
  EXPECT_EQ(sheet.At(0, 1), 3U);
  EXPECT_EQ(copy.At(1, 1), 4U);
  EXPECT_EQ(times, 1);
}

TEST(Surface, WhatIsDrawnOnACopyIsShownByItAlone) {
  int times = 0;
  const Surface sheet = Made(times);
  Surface copy = sheet;
  copy.Refresh();
  for (const Colour colour : {7U, 8U}) {
    const Colour before = copy.ShownAt(1, 1);
    FillBox(copy, 1, 1, 1, 1, colour);
    EXPECT_EQ(copy.ShownAt(1, 1), before) << "nothing is seen before it is published";
    copy.Refresh();
    EXPECT_EQ(copy.ShownAt(1, 1), colour);
    EXPECT_EQ(copy.ShownAt(0, 0), 1U);
  }
  EXPECT_EQ(sheet.At(1, 1), 4U);
}

TEST(Surface, CopiesShowWhatTheyHeldWhenTheyWereMade) {
  Surface first(2, 2, 1);
  first.Refresh();
  FillBox(first, 0, 0, 0, 0, 2);
  first.Refresh();
  const Surface second = first;
  FillBox(first, 0, 0, 0, 0, 3);
  first.Refresh();
  EXPECT_EQ(first.ShownAt(0, 0), 3U);
  EXPECT_EQ(second.ShownAt(0, 0), 2U);
}

TEST(Surface, NothingIsShownBeforeTheFirstRefresh) {
  Surface surface(3, 2, 0x123456);
  EXPECT_EQ(surface.ShownAt(2, 1), 0u);
  EXPECT_TRUE(surface.Shown().empty());
  surface.Refresh();
  EXPECT_EQ(surface.ShownAt(2, 1), 0x123456u);
}

}  // namespace
}  // namespace orvane
