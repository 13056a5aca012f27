#include "src/core/map_file.h"

#include <gtest/gtest.h>

#include "src/base/error.h"
#include "src/platform/memory_storage.h"

namespace orvane {
namespace {

class MapFileTest : public testing::Test {
 protected:
  void Write(const std::string& text) { files_.Files["Mapdata/map1-2.dat"] = text; }
  void Read() { ReadMapFile(files_, {2, 1}, tiles); }
  ErrorKind KindOfError() {
    try {
      Read();
    } catch (const RunError& error) {
      return error.Kind;
    }
    ADD_FAILURE() << "no error";
    return ErrorKind::File;
  }

  // The numbers 0 to count - 1 with what stands between them.
  static std::string Numbers(int count, const char* between) {
    std::string text;
    for (int i = 0; i < count; ++i) text += std::to_string(i) + between;
    return text;
  }

  MapTiles tiles;

 private:
  MemoryStorage files_;
};

TEST_F(MapFileTest, RunsDownTheColumns) {
  Write(Numbers(480, ","));
  Read();
  EXPECT_EQ(int{tiles[0][0]}, 0);
  EXPECT_EQ(int{tiles[0][15]}, 15);
  EXPECT_EQ(int{tiles[1][0]}, 16);
  EXPECT_EQ(int{tiles[29][15]}, 479);
  EXPECT_EQ(int{tiles[30][16]}, 0) << "the spare column and row are never written";
}

TEST_F(MapFileTest, CommasBlanksAndLineEndsAllSeparate) {
  for (const char* between : {",", " ", "\n", "\r\n", " , ", "\t", ",\r\n", "   \n\n"}) {
    Write(Numbers(480, between));
    Read();
    EXPECT_EQ(int{tiles[29][15]}, 479) << "separated by [" << between << "]";
  }
}

TEST_F(MapFileTest, WhatFollowsIsIgnored) {
  Write(Numbers(480, " ") + "the end");
  EXPECT_NO_THROW(Read());
}

TEST_F(MapFileTest, TooFewNumbersAreAFileError) {
  Write(Numbers(479, " "));
  EXPECT_EQ(KindOfError(), ErrorKind::File);
  Write("");
  EXPECT_EQ(KindOfError(), ErrorKind::File);
}

TEST_F(MapFileTest, AMissingFileIsAFileError) {
  EXPECT_EQ(KindOfError(), ErrorKind::File);
}

TEST_F(MapFileTest, AWordIsATypeError) {
  Write("1 2 three " + Numbers(480, " "));
  EXPECT_EQ(KindOfError(), ErrorKind::Type);
}

TEST_F(MapFileTest, NamesForWhatIsNoNumberAndTwoSignsAreTypeErrors) {
  for (const char* word : {"inf", "-inf", "+infinity", "Infinity", "nan", "-nan", "+-5", "-+5",
                           "--5", "++5", "+", "-", "."}) {
    Write(word + (" " + Numbers(480, " ")));
    EXPECT_EQ(KindOfError(), ErrorKind::Type) << word;
  }
}

TEST_F(MapFileTest, SignsFractionsAndPowersOfTenAreNumbers) {
  Write("-5 +5 2.5 .5 1e2 -1.5E1 " + Numbers(480, " "));
  Read();
  for (const auto& [row, code] : {std::pair(0, -5), {1, 5}, {2, 2}, {3, 0}, {4, 100}, {5, -15}}) {
    EXPECT_EQ(int{tiles[0][row]}, code) << row;
  }
}

TEST_F(MapFileTest, ANumberBeyondSixteenBitsIsAnOverflow) {
  Write("40000 " + Numbers(480, " "));
  EXPECT_EQ(KindOfError(), ErrorKind::Overflow);
}

TEST_F(MapFileTest, TheRowComesFirstInTheName) {
  EXPECT_EQ(MapFile({4, 1}), "Mapdata/map1-4.dat");
  EXPECT_EQ(MapFile({0, 0}), "Mapdata/map0-0.dat");
}

TEST(MapName, IsARoomsOwnForARoom) {
  EXPECT_EQ(MapFile({0, 0, kSpringRoom}), "Mapdata/Fresh.dat");
  EXPECT_EQ(MapFile({0, 0, BookRoom(2)}), "Mapdata/Book2.dat");
  EXPECT_EQ(MapFile({0, 0, kLastBookRoom}), "Mapdata/BookF.dat");
}

TEST_F(MapFileTest, NothingBeforeACommaIsZero) {
  Write(",5,," + Numbers(477, ","));
  Read();
  EXPECT_EQ(int{tiles[0][0]}, 0);
  EXPECT_EQ(int{tiles[0][1]}, 5);
  EXPECT_EQ(int{tiles[0][2]}, 0);
  EXPECT_EQ(int{tiles[0][4]}, 1);
}

}  // namespace
}  // namespace orvane
