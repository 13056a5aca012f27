// Which files a page takes for saves.
#include "src/frontend/web/services/save_check.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

#include "src/core/new_game.h"
#include "src/core/save_file.h"

namespace orvane {
namespace {

GameRecord Played() {
  GameRecord record;
  FreshRecord(record);
  record.HeroName[0] = record.SaveName[0] = "カイ";
  record.HeroName[1] = record.SaveName[1] = "リナ";
  record.SaveLevel[0] = record.Level[0] = 7;
  record.SaveLevel[1] = record.Level[1] = 6;
  record.SaveRound = record.Round = 2;
  record.SaveX = 200;
  record.SaveY = 120;
  return record;
}

TEST(SaveCheckTest, TakesWhatTheGameWrites) {
  EXPECT_EQ(SaveProblem(PackRecord(Played())), "");
  EXPECT_EQ(SaveSummary(PackRecord(Played())), "ラウンド2　カイ　LV7　リナ　LV6");
}

TEST(SaveCheckTest, TellsOfAnEmptySlot) {
  GameRecord record = Played();
  record.SaveRound = 0;
  EXPECT_EQ(SaveSummary(PackRecord(record)), "（まだ使われていません）");
}

TEST(SaveCheckTest, RefusesOtherLengths) {
  const std::string bytes = PackRecord(Played());
  EXPECT_NE(SaveProblem(bytes.substr(1)), "");
  EXPECT_NE(SaveProblem(bytes + " "), "");
  EXPECT_NE(SaveProblem(""), "");
  EXPECT_EQ(SaveSummary(""), "");
}

TEST(SaveCheckTest, RefusesForeignBytesOfTheSameLength) {
  EXPECT_NE(SaveProblem(std::string(kSaveFileSize, '\0')), "");
  EXPECT_NE(SaveProblem(std::string(kSaveFileSize, ' ')), "");
  std::mt19937 chance(1);
  for (int i = 0; i < 1000; ++i) {
    std::string bytes;
    while (bytes.size() < kSaveFileSize) bytes += static_cast<char>(chance() & 0xFF);
    EXPECT_NE(SaveProblem(bytes), "");
  }
}

TEST(SaveCheckTest, RefusesARecordThatNoGameCouldHold) {
  GameRecord record = Played();
  record.Round = 5;
  EXPECT_NE(SaveProblem(PackRecord(record)), "");
  record = Played();
  record.HP[0] = record.MaxHP[0] + 1;
  EXPECT_NE(SaveProblem(PackRecord(record)), "");
  record = Played();
  record.Items[3] = 100;
  EXPECT_NE(SaveProblem(PackRecord(record)), "");
}

}  // namespace
}  // namespace orvane
