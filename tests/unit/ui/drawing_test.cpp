// What everything is drawn with.
#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>
#include <random>

#include "src/ui/surface.h"

namespace orvane {
namespace {

// A surface whose pixel (x, y) has the colour y * 256 + x.
Surface Numbered(int width, int height) {
  Surface::Pixels pixels;
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) pixels.push_back(static_cast<Colour>(y * 256 + x));
  }
  return {width, height, std::move(pixels)};
}

int Painted(const Surface& surface, Colour colour) {
  int count = 0;
  for (int y = 0; y < surface.Height(); ++y) {
    for (int x = 0; x < surface.Width(); ++x) count += surface.At(x, y) == colour ? 1 : 0;
  }
  return count;
}

TEST(BitBlt, CopiesARectangle) {
  Surface target(10, 10, 0xFFFFFF);
  BitBlt(target, 2, 3, 4, 2, Numbered(8, 8), 1, 5, Blit::Copy);
  EXPECT_EQ(target.At(2, 3), 5u * 256 + 1);
  EXPECT_EQ(target.At(5, 4), 6u * 256 + 4);
  EXPECT_EQ(Painted(target, 0xFFFFFF), 100 - 8);
}

TEST(BitBlt, JoinsBitsByTheOperation) {
  Surface target(1, 1, 0x0F0F0F);
  BitBlt(target, 0, 0, 1, 1, Surface(1, 1, 0xF00000), 0, 0, Blit::Or);
  EXPECT_EQ(target.At(0, 0), 0xFF0F0Fu);
  BitBlt(target, 0, 0, 1, 1, Surface(1, 1, 0x0F00FF), 0, 0, Blit::And);
  EXPECT_EQ(target.At(0, 0), 0x0F000Fu);
}

TEST(BitBlt, AMaskAndItsImageLeaveTheGroundAround) {
  Surface scene(2, 1, 0x336699);
  const Surface mask(2, 1, Surface::Pixels{0x000000, 0xFFFFFF});
  const Surface image(2, 1, Surface::Pixels{0xFFFFFF, 0x123456});
  BitBlt(scene, 0, 0, 2, 1, mask, 0, 0, Blit::Or);
  BitBlt(scene, 0, 0, 2, 1, image, 0, 0, Blit::And);
  EXPECT_EQ(scene.At(0, 0), 0x336699u);
  EXPECT_EQ(scene.At(1, 0), 0x123456u);
}

TEST(BitBlt, IsClippedAtEveryEdge) {
  const Surface source = Numbered(4, 4);
  Surface target(4, 4, 0xFFFFFF);
  BitBlt(target, -2, -1, 4, 4, source, 0, 0, Blit::Copy);
  EXPECT_EQ(target.At(0, 0), 1u * 256 + 2);
  EXPECT_EQ(Painted(target, 0xFFFFFF), 16 - 2 * 3);
  Surface other(4, 4, 0xFFFFFF);
  BitBlt(other, 3, 3, 4, 4, source, 0, 0, Blit::Copy);
  EXPECT_EQ(other.At(3, 3), 0u);
  EXPECT_EQ(Painted(other, 0xFFFFFF), 15);
  BitBlt(other, 100, 100, 4, 4, source, 0, 0, Blit::Copy);
  EXPECT_EQ(Painted(other, 0xFFFFFF), 15);
}

TEST(BitBlt, WhatTheSourceLacksStaysAsItWas) {
  Surface target(4, 4, 0xFFFFFF);
  BitBlt(target, 0, 0, 4, 4, Surface(4, 3, 0), 0, 0, Blit::Copy);
  EXPECT_EQ(target.At(0, 2), 0u);
  EXPECT_EQ(target.At(0, 3), 0xFFFFFFu);
  Surface other(4, 4, 0xFFFFFF);
  BitBlt(other, 0, 0, 4, 4, Surface(4, 4, 0), -1, -2, Blit::Copy);
  EXPECT_EQ(other.At(0, 3), 0xFFFFFFu);
  EXPECT_EQ(other.At(1, 2), 0u);
}

TEST(BitBlt, WithinOneSurfaceTheOldPixelsAreRead) {
  Surface surface = Numbered(4, 4);
  BitBlt(surface, 0, 1, 4, 3, surface, 0, 0, Blit::Copy);
  EXPECT_EQ(surface.At(2, 3), 2u * 256 + 2);
  EXPECT_EQ(surface.At(2, 0), 2u);
}

TEST(StretchBlt, EnlargingRepeatsPixels) {
  Surface target(6, 4, 0);
  StretchBlt(target, {0, 0, 6, 4}, Numbered(2, 2), {0, 0, 2, 2}, Blit::Copy);
  EXPECT_EQ(target.At(2, 1), 0u);
  EXPECT_EQ(target.At(3, 1), 1u);
  EXPECT_EQ(target.At(5, 2), 257u);
}

TEST(StretchBlt, EveryPixelReadsTheFlooredPlace) {
  const Surface source = Numbered(40, 36);
  Surface target(36, 33);
  StretchBlt(target, {0, 0, 36, 33}, source, {0, 0, 40, 36}, Blit::Copy);
  for (int y = 0; y < 33; ++y) {
    for (int x = 0; x < 36; ++x) EXPECT_EQ(target.At(x, y), source.At(x * 40 / 36, y * 36 / 33));
  }
}

TEST(StretchBlt, ClippingDoesNotShiftTheScale) {
  const Surface source = Numbered(10, 10);
  Surface target(10, 10, 0xFFFFFF);
  StretchBlt(target, {-7, -3, 25, 20}, source, {0, 0, 10, 10}, Blit::Copy);
  for (int y = 0; y < 10; ++y) {
    for (int x = 0; x < 10; ++x) {
      EXPECT_EQ(target.At(x, y), source.At((x + 7) * 10 / 25, (y + 3) * 10 / 20));
    }
  }
}

TEST(StretchBlt, ARectangleThatHangsOverItsSheetIsClippedThere) {
  Surface target(64, 64, 0xFFFFFF);
  StretchBlt(target, {0, 0, 64, 64}, Surface(64, 50, 0), {0, 0, 64, 64}, Blit::Copy);
  EXPECT_EQ(target.At(63, 49), 0u);
  EXPECT_EQ(target.At(0, 50), 0xFFFFFFu);
}

TEST(StretchBlt, NoSizeDrawsNothing) {
  Surface target(4, 4, 0xFFFFFF);
  StretchBlt(target, {0, 0, 0, 4}, Surface(4, 4), {0, 0, 4, 4}, Blit::Copy);
  StretchBlt(target, {0, 0, 4, 0}, Surface(4, 4), {0, 0, 4, 4}, Blit::Copy);
  StretchBlt(target, {0, 0, 4, 4}, Surface(4, 4), {0, 0, 0, 4}, Blit::Copy);
  StretchBlt(target, {0, 0, 4, 4}, Surface(4, 4), {0, 0, 4, 0}, Blit::Copy);
  StretchBlt(target, {3, 3, -2, -2}, Surface(4, 4), {0, 0, 4, 4}, Blit::Copy);
  EXPECT_EQ(Painted(target, 0xFFFFFF), 16);
}

TEST(StretchBlt, TheSmallestSizesDraw) {
  Surface target(4, 4, 0xFFFFFF);
  StretchBlt(target, {1, 0, 1, 4}, Surface(4, 1), {0, 0, 4, 1}, Blit::Copy);
  EXPECT_EQ(Painted(target, 0), 4) << "one column of one row";
  StretchBlt(target, {0, 3, 4, 1}, Surface(1, 4), {0, 0, 1, 4}, Blit::Copy);
  EXPECT_EQ(Painted(target, 0), 7) << "and one row of one column";
}

TEST(StretchBlt, WithinOneSurfaceACopyIsRead) {
  Surface surface = Numbered(8, 8);
  const Surface before = surface;
  StretchBlt(surface, {0, 0, 8, 8}, surface, {0, 0, 4, 4}, Blit::Copy);
  for (int y = 0; y < 8; ++y) {
    for (int x = 0; x < 8; ++x) EXPECT_EQ(surface.At(x, y), before.At(x / 2, y / 2));
  }
}

TEST(FillBox, TakesBothCornersInAnyOrder) {
  Surface surface(10, 10, 0);
  FillBox(surface, 5, 6, 2, 4, 0xAA);
  EXPECT_EQ(Painted(surface, 0xAA), 4 * 3);
  EXPECT_EQ(surface.At(5, 6), 0xAAu);
  EXPECT_EQ(surface.At(2, 4), 0xAAu);
  FillBox(surface, 7, 1, 7, 1, 0xDD);
  FillBox(surface, 0, 8, 0, 9, 0xDD);
  EXPECT_EQ(Painted(surface, 0xDD), 3) << "both corners belong to it";
  FillBox(surface, -5, -5, 100, 100, 0xBB);
  EXPECT_EQ(Painted(surface, 0xBB), 100);
  FillBox(surface, 10, 0, 20, 9, 0xCC);
  EXPECT_EQ(Painted(surface, 0xCC), 0);
}

TEST(DrawCircle, IsAThinOutline) {
  Surface surface(41, 41, 0);
  DrawCircle(surface, 20, 20, 15, 0xFFFFFF);
  for (const auto& [x, y] : {std::pair{35, 20}, {5, 20}, {20, 35}, {20, 5}}) {
    EXPECT_EQ(surface.At(x, y), 0xFFFFFFu);
  }
  for (int y = 0; y < 41; ++y) {
    for (int x = 0; x < 41; ++x) {
      const int square = (x - 20) * (x - 20) + (y - 20) * (y - 20);
      if (surface.At(x, y) != 0) {
        EXPECT_NEAR(square, 15 * 15, 16) << x << ", " << y;
      } else {
        EXPECT_GT(std::abs(square - 15 * 15), 0);
      }
    }
  }
  // Every row that the circle crosses has it at the same distance on both sides.
  for (int y = 5; y <= 35; ++y) {
    int left = 0;
    while (left < 41 && surface.At(left, y) == 0) ++left;
    EXPECT_LT(left, 21);
    EXPECT_EQ(surface.At(40 - left, y), 0xFFFFFFu);
  }
}

TEST(DrawCircle, IsClipped) {
  Surface surface(10, 10, 0);
  DrawCircle(surface, 0, 0, 5, 1);
  EXPECT_EQ(surface.At(5, 0), 1u);
  DrawCircle(surface, 5, -100, 250, 1);
  DrawCircle(surface, 5, 5, -1, 2);
  EXPECT_EQ(Painted(surface, 2), 0);
}

TEST(DrawCircle, OfTheSmallestIsAPointAndACross) {
  Surface surface(9, 9, 0);
  DrawCircle(surface, 4, 4, 0, 1);
  EXPECT_EQ(Painted(surface, 1), 1);
  EXPECT_EQ(surface.At(4, 4), 1u);
  DrawCircle(surface, 4, 4, 1, 2);
  EXPECT_EQ(Painted(surface, 2), 4);
  for (const auto& [x, y] : {std::pair{3, 4}, {5, 4}, {4, 3}, {4, 5}})
    EXPECT_EQ(surface.At(x, y), 2u);
}

TEST(DrawCircle, TakesThePixelNextToTheCircleInEachRow) {
  for (int radius = 1; radius <= 60; ++radius) {
    Surface surface(140, 130, 0);
    DrawCircle(surface, 70, 65, radius, 1);
    for (int y = 0;; ++y) {
      const int x = static_cast<int>(std::lround(std::sqrt(radius * radius - y * y)));
      if (y > x) break;
      EXPECT_EQ(surface.At(70 + x, 65 + y), 1u) << radius << ": " << x << ", " << y;
      EXPECT_EQ(surface.At(70 - y, 65 - x), 1u) << radius << ": " << y << ", " << x;
    }
  }
}

TEST(DrawCircle, IsTheSameOnAWideSurface) {
  Surface square(30, 30, 0);
  Surface wide(30, 8, 0);
  DrawCircle(square, 24, 4, 3, 1);
  DrawCircle(wide, 24, 4, 3, 1);
  for (int y = 0; y < 8; ++y) {
    for (int x = 0; x < 30; ++x) EXPECT_EQ(wide.At(x, y), square.At(x, y)) << x << ", " << y;
  }
  EXPECT_GT(Painted(wide, 1), 0);
}

TEST(DrawCircle, BeyondTheLargestIsNotDrawn) {
  Surface surface(10, 10, 0);
  DrawCircle(surface, 5 - kLargestRadius - 1, 5, kLargestRadius + 1, 1);
  EXPECT_EQ(Painted(surface, 0), 100);
  DrawCircle(surface, 5 - kLargestRadius, 5, kLargestRadius, 1);
  EXPECT_EQ(surface.At(5, 5), 1u);
}

// A stretch pixel by pixel, as slow as it is plain.
void StretchSlowly(Surface& destination, const Rect& target, const Surface& source,
                   const Rect& area, Blit operation) {
  for (int y = 0; y < target.Height; ++y) {
    for (int x = 0; x < target.Width; ++x) {
      const int from_x = area.X + x * area.Width / target.Width;
      const int from_y = area.Y + y * area.Height / target.Height;
      const int to_x = target.X + x;
      const int to_y = target.Y + y;
      if (!source.Contains(from_x, from_y) || !destination.Contains(to_x, to_y)) continue;
      const Colour read = source.At(from_x, from_y);
      const Colour there = destination.At(to_x, to_y);
      const Colour joined = operation == Blit::Copy ? read
                            : operation == Blit::Or ? there | read
                                                    : there & read;
      FillBox(destination, to_x, to_y, to_x, to_y, joined);
    }
  }
}

TEST(StretchBlt, DrawsWhatADrawingPixelByPixelDraws) {
  std::mt19937 chance(3);
  const auto any = [&chance](int from, int to) {
    return from + static_cast<int>(chance() % static_cast<unsigned>(to - from + 1));
  };
  const Surface source = Numbered(14, 11);
  for (int round = 0; round < 3000; ++round) {
    Surface drawn = Numbered(20, 17);
    Surface wanted = drawn;
    const Rect area{any(-4, 14), any(-4, 11), any(1, 9), any(1, 9)};
    Rect target{any(-6, 20), any(-6, 17), any(1, 24), any(1, 24)};
    if (round % 3 == 0) target.Width = area.Width;
    if (round % 2 == 0) target.Height = area.Height;
    const Blit operation = std::array{Blit::Copy, Blit::Or, Blit::And}[chance() % 3];
    StretchBlt(drawn, target, source, area, operation);
    StretchSlowly(wanted, target, source, area, operation);
    for (int y = 0; y < drawn.Height(); ++y) {
      for (int x = 0; x < drawn.Width(); ++x) {
        ASSERT_EQ(drawn.At(x, y), wanted.At(x, y)) << "round " << round << ", " << x << "," << y;
      }
    }
  }
}

TEST(BitBlt, LeavesOutWhatLiesFarOutside) {
  constexpr int far = std::numeric_limits<int>::max();
  constexpr int far_back = std::numeric_limits<int>::min();
  const Surface source(4, 4, 9);
  Surface target(4, 4, 1);
  for (const int x : {far, far_back}) {
    for (const int from : {far, far_back, 0}) {
      BitBlt(target, x, 0, far, 4, source, from, 0, Blit::Copy);
      BitBlt(target, 0, from, 4, far, source, 0, x, Blit::Copy);
      StretchBlt(target, {x, 0, 4, 4}, source, {from, 0, 4, 4}, Blit::Copy);
      StretchBlt(target, {0, 0, 4, 4}, source, {0, x, 4, 4}, Blit::Copy);
    }
  }
  EXPECT_EQ(Painted(target, 1), 16);
  BitBlt(target, far_back + 2, 0, far, 4, source, far_back + 2, 0, Blit::Copy);
  EXPECT_EQ(Painted(target, 1), 12) << "one column lies inside both";
}

TEST(StretchBlt, ASizeOfNothingDrawsNothing) {
  const Surface source(4, 4, 0x123456);
  Surface target(4, 4, 0xFFFFFF);
  for (const Rect& none :
       {Rect{0, 0, 0, 4}, Rect{0, 0, 4, 0}, Rect{0, 0, -1, 4}, Rect{0, 0, 4, -1}}) {
    StretchBlt(target, none, source, {0, 0, 2, 2}, Blit::Copy);
    StretchBlt(target, {0, 0, 4, 4}, source, none, Blit::Copy);
  }
  EXPECT_EQ(Painted(target, 0xFFFFFF), 16);
}

TEST(FillBox, IsClippedAtEveryEdgeAndMayLieOutside) {
  Surface target(4, 4, 0);
  FillBox(target, -9, 1, -1, 2, 1);
  FillBox(target, 4, 1, 9, 2, 1);
  FillBox(target, 1, -9, 2, -1, 1);
  FillBox(target, 1, 4, 2, 9, 1);
  EXPECT_EQ(Painted(target, 1), 0);
  FillBox(target, 9, 9, 2, 3, 1);
  EXPECT_EQ(Painted(target, 1), 2);
}

TEST(DrawCircle, OutsideOrWithoutARadiusItDrawsNothing) {
  Surface target(8, 8, 0);
  DrawCircle(target, 4, 4, -1, 1);
  DrawCircle(target, 4, 4, std::numeric_limits<int>::max(), 1);
  DrawCircle(target, -4, 4, 3, 1);
  DrawCircle(target, 12, 4, 3, 1);
  DrawCircle(target, 4, -4, 3, 1);
  DrawCircle(target, 4, 12, 3, 1);
  EXPECT_EQ(Painted(target, 1), 0);
  DrawCircle(target, 4, 4, 0, 1);
  EXPECT_EQ(Painted(target, 1), 1);
}

}  // namespace
}  // namespace orvane
