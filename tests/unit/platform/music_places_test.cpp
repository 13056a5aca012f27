#include "src/platform/music_places.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "src/platform/sound_channels.h"

namespace orvane {
namespace {

TEST(MusicPlaces, TheFieldHasAPieceForEachRoundAndOneForTheLastStage) {
  EXPECT_STREQ(FieldMusic(1, false), "bgm1");
  EXPECT_STREQ(FieldMusic(2, false), "bgm2");
  EXPECT_STREQ(FieldMusic(3, false), "bgm3");
  EXPECT_STREQ(FieldMusic(4, true), "bgm8");
  EXPECT_STREQ(FieldMusic(3, true), "bgm3") << "the round goes first";
  EXPECT_EQ(FieldMusic(4, false), nullptr) << "the last stage's mark is not saved";
  EXPECT_EQ(FieldMusic(0, false), nullptr);
}

TEST(MusicPlaces, AFightsPieceIsThatOfItsEnemy) {
  EXPECT_STREQ(FightMusic(false, false), "bgm4");
  EXPECT_STREQ(FightMusic(true, false), "bgm5");
  EXPECT_STREQ(FightMusic(false, true), "bgm6");
  EXPECT_STREQ(FightMusic(true, true), "bgm5");
}

TEST(MusicPlaces, AFieldsPieceIsFollowedByTheFightThatChanceBringsThere) {
  for (const char* field : {"bgm1", "bgm2", "bgm3"}) {
    EXPECT_STREQ(FightMusicAfter(field), "bgm4") << field;
  }
  EXPECT_STREQ(FightMusicAfter("bgm8"), "bgm6");
  for (const char* other : {"bgm4", "bgm5", "bgm6", "bgm7", "snd1", ""}) {
    EXPECT_EQ(FightMusicAfter(other), nullptr) << other;
  }
}

TEST(MusicPlaces, EveryChannelHasASoundOfItsOwn) {
  std::vector<std::string> files;
  for (const char* channel : kMusicChannels) files.push_back(SoundFile(channel));
  for (const char* channel : kEffectChannels) files.push_back(SoundFile(channel));
  std::sort(files.begin(), files.end());
  EXPECT_EQ(std::unique(files.begin(), files.end()), files.end());
  EXPECT_NE(files.front(), "");
}

}  // namespace
}  // namespace orvane
