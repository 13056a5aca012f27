#include "tools/maps/tile_map.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace orvane::maps {
namespace {

TileMap Numbered() {
  TileMap map;
  for (int column = 0; column < kMapColumns; ++column) {
    for (int row = 0; row < kMapRows; ++row) map.Set(column, row, (column * kMapRows + row) % 241);
  }
  return map;
}

TEST(TileMap, RunsDownTheColumns) {
  const std::string text = WriteDat(Numbered());
  EXPECT_EQ(text.substr(0, text.find('\n')), "0,1,2,3,4,5,6,7,8,9,10,11,12,13,14,15");
  EXPECT_EQ(ReadDat(text).At(0, 15), 15);
  EXPECT_EQ(ReadDat(text).At(1, 0), 16);
}

TEST(TileMap, ComesBackByteForByte) {
  const std::string text = WriteDat(Numbered());
  EXPECT_EQ(WriteDat(ReadDat(text)), text);
  EXPECT_EQ(ReadDat(text), Numbered());
}

TEST(TileMap, TakesCommasBlanksAndLineEndsAlike) {
  std::string text;
  for (int cell = 0; cell < kCells; ++cell) {
    constexpr const char* kBetween[] = {",", " ", "\r\n", ", ", "\t"};
    text += std::to_string(cell % 241) + kBetween[cell % 5];
  }
  EXPECT_EQ(ReadDat(text), Numbered());
}

TEST(TileMap, IgnoresWhatFollowsTheLastNumber) {
  EXPECT_EQ(ReadDat(WriteDat(Numbered()) + "7,8,end of file"), Numbered());
}

TEST(TileMap, RefusesAShortFile) {
  const std::string text = WriteDat(Numbered());
  EXPECT_THROW(ReadDat(text.substr(0, text.size() - 20)), std::runtime_error);
  EXPECT_THROW(ReadDat(""), std::runtime_error);
}

TEST(TileMap, RefusesWhatIsNotANumber) {
  std::string text = WriteDat(Numbered());
  text[0] = 'x';
  EXPECT_THROW(ReadDat(text), std::runtime_error);
}

TEST(TileMap, IsZeroOutside) {
  TileMap map = Numbered();
  map.Set(30, 0, 9);
  map.Set(0, -1, 9);
  EXPECT_EQ(map, Numbered());
  EXPECT_EQ(map.At(30, 0), 0);
  EXPECT_EQ(map.At(-1, 3), 0);
  EXPECT_EQ(map.At(3, 16), 0);
}

}  // namespace
}  // namespace orvane::maps
