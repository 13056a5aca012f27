#include "src/core/save_file.h"

#include <gtest/gtest.h>

#include "src/core/new_game.h"

namespace orvane {
namespace {

int Number16(const std::string& bytes, size_t at) {
  return static_cast<int16_t>(static_cast<unsigned char>(bytes[at]) |
                              static_cast<unsigned char>(bytes[at + 1]) << 8);
}

TEST(SaveFile, HasItsSizeAndPlaces) {
  GameRecord record;
  FreshRecord(record);
  record.Round = 3;
  record.SaveX = 192;
  record.HeroName[1] = "リナ";
  record.Spirit[2] = 77;
  record.Items[20] = -5;
  record.Exp[1] = -2;
  record.SaveRound = 2;
  const std::string bytes = PackRecord(record);
  ASSERT_EQ(bytes.size(), kSaveFileSize);
  EXPECT_EQ(Number16(bytes, 0), 3);
  EXPECT_EQ(Number16(bytes, 2), 192);
  EXPECT_EQ(Number16(bytes, 8), -1) << "the first chest is closed";
  EXPECT_EQ(bytes.substr(66, 8), "\x83\x8A\x83\x69    ");
  EXPECT_EQ(Number16(bytes, 158), 77);
  EXPECT_EQ(bytes.substr(270, 6), "\x82\xC8\x82\xB5  ");
  EXPECT_EQ(Number16(bytes, 450), 3);
  EXPECT_EQ(Number16(bytes, 452), 47);
  EXPECT_EQ(Number16(bytes, 492), -5);
  EXPECT_EQ(Number16(bytes, 498), -2);
  EXPECT_EQ(Number16(bytes, 500), -1) << "the upper half of a 32-bit number";
  EXPECT_EQ(Number16(bytes, 506), 0);
  EXPECT_EQ(Number16(bytes, 538), 2);
}

TEST(SaveFile, ComesBackAsItWas) {
  GameRecord record;
  FreshRecord(record);
  record.HeroName[0] = "ジークフリド";
  record.Reserved1 = 9;
  const std::string bytes = PackRecord(record);
  GameRecord again;
  UnpackRecord(bytes, again);
  EXPECT_EQ(again.HeroName[0].Full(), "ジークフ    ") << "eight bytes hold four of its characters";
  EXPECT_EQ(int{again.Reserved1}, 9);
  EXPECT_EQ(PackRecord(again), bytes);
}

TEST(SaveFile, MissingBytesAreZerosAndBlanks) {
  GameRecord record;
  FreshRecord(record);
  UnpackRecord(std::string("\x02\x00\x05", 3), record);
  EXPECT_EQ(int{record.Round}, 2);
  EXPECT_EQ(int{record.SaveX}, 5);
  EXPECT_EQ(int{record.Level[0]}, 0);
  EXPECT_EQ(record.HeroName[0].Full(), "        ");
  EXPECT_EQ(record.WeaponName[1].Trimmed(), "");
}

TEST(SaveFile, ZeroBytesInTextAreBlanks) {
  GameRecord record;
  UnpackRecord(std::string(kSaveFileSize, '\0'), record);
  EXPECT_EQ(record.SaveName[0].Full(), "        ");
}

TEST(SaveFile, WhatIsTooMuchIsIgnored) {
  GameRecord record;
  FreshRecord(record);
  const std::string bytes = PackRecord(record);
  GameRecord again;
  UnpackRecord(bytes + "more", again);
  EXPECT_EQ(PackRecord(again), bytes);
}

}  // namespace
}  // namespace orvane
