// Pictures enlarged by factors that are no whole numbers.
#include "src/frontend/shared/enlarge.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

constexpr uint32_t kBlack = 0xFF000000;
constexpr uint32_t kWhite = 0xFFFFFFFF;
constexpr uint32_t kHalf = 0xFF7F7F7F;

TEST(Enlarge, WholeFactorsRepeatPixels) {
  const uint32_t pixels[] = {kBlack, kWhite};
  const std::vector<uint32_t> wanted = {kBlack, kBlack, kWhite, kWhite,
                                        kBlack, kBlack, kWhite, kWhite};
  EXPECT_EQ(Enlarge(pixels, 2, 1, 2, {0, 0, 4, 2}), wanted);
}

TEST(Enlarge, WhatLiesBetweenTwoPixelsIsTheirMean) {
  const uint32_t pixels[] = {kBlack, kWhite};
  const std::vector<uint32_t> wanted = {kBlack, kHalf, kWhite};
  EXPECT_EQ(Enlarge(pixels, 2, 1, 1.5, {0, 0, 3, 1}), wanted);
}

TEST(Enlarge, ColoursDoNotRunIntoEachOther) {
  const uint32_t pixels[] = {0xFFFF0000, 0xFF0000FF};
  EXPECT_EQ(Enlarge(pixels, 2, 1, 1.5, {1, 0, 1, 1}), std::vector<uint32_t>{0xFF7F007F});
}

TEST(Enlarge, PartsFitTogether) {
  std::vector<uint32_t> pixels;
  for (uint32_t i = 0; i < 30; ++i) pixels.push_back(kBlack | i * 0x070B0D);
  const std::vector<uint32_t> whole = Enlarge(pixels.data(), 6, 5, 2.3, {0, 0, 13, 11});
  for (int y = 0; y < 11; ++y) {
    const std::vector<uint32_t> part = Enlarge(pixels.data(), 6, 5, 2.3, {4, y, 5, 1});
    for (int x = 0; x < 5; ++x) {
      EXPECT_EQ(part[size_t(x)], whole[size_t(y * 13 + 4 + x)]) << x << ", " << y;
    }
  }
}

TEST(Enlarge, BeyondThePictureItsLastPixelsGoOn) {
  const uint32_t pixels[] = {kBlack, kWhite};
  const std::vector<uint32_t> wanted = {kWhite, kWhite};
  EXPECT_EQ(Enlarge(pixels, 2, 1, 1.5, {2, 1, 2, 1}), wanted);
  EXPECT_TRUE(Enlarge(pixels, 0, 1, 2, {0, 0, 2, 2}).empty());
  EXPECT_TRUE(Enlarge(pixels, 1, 0, 2, {0, 0, 2, 2}).empty());
}

}  // namespace
}  // namespace orvane
