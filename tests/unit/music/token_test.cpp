#include "tools/music/token.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace orvane::music {
namespace {

TEST(Token, ReadsPitchOctavesLengthAndMarks) {
  const Token token = ReadToken("(f#''4.>~");
  ASSERT_EQ(token.tones.size(), 1U);
  EXPECT_EQ(token.tones[0].semitone, 6);
  EXPECT_EQ(token.tones[0].octaves, 2);
  EXPECT_EQ(token.length, kQuarter * 3 / 2);
  EXPECT_EQ(token.stress, 10);
  EXPECT_TRUE(token.opens_slur);
  EXPECT_FALSE(token.closes_slur);
  EXPECT_TRUE(token.tied);
}

TEST(Token, TellsAFlatFromTheNoteB) {
  EXPECT_EQ(ReadToken("bb4").tones[0].semitone, 10);
  EXPECT_EQ(ReadToken("b4").tones[0].semitone, 11);
  EXPECT_EQ(ReadToken("eb,8").tones[0].octaves, -1);
}

TEST(Token, ReadsRestsChordsVoicesAndBassTones) {
  EXPECT_TRUE(ReadToken("r2").tones.empty());
  EXPECT_EQ(ReadToken("[c e g]2").tones.size(), 3U);
  EXPECT_TRUE(ReadToken("*1").whole_chord);
  const Token voice = ReadToken("@3:8");
  EXPECT_EQ(voice.tones[0].kind, ToneKind::Voice);
  EXPECT_EQ(voice.tones[0].voice, 3);
  EXPECT_EQ(voice.length, kQuarter / 2);
  const Token bass = ReadToken("F'16!");
  EXPECT_EQ(bass.tones[0].kind, ToneKind::Bass);
  EXPECT_EQ(bass.tones[0].degree, 'F');
  EXPECT_EQ(bass.touch, Touch::Staccato);
}

TEST(Token, ReadsTripletsAsTwelfths) {
  EXPECT_EQ(ReadToken("c12").length, kWhole / 12);
}

TEST(Token, RefusesWhatIsNoNote) {
  for (const char* text : {"", "h4", "c4x", "c7", "c0", "@0", "[c e", "@", "4"}) {
    EXPECT_THROW(ReadToken(text), std::invalid_argument) << text;
  }
}

TEST(Token, GroupsAreUnfolded) {
  const std::vector<std::string> out = Unfolded({"{c8", "d}2", "e4"});
  EXPECT_EQ(out, (std::vector<std::string>{"c8", "d", "c8", "d", "e4"}));
  EXPECT_EQ(Unfolded({"{c8}3"}).size(), 3U);
  EXPECT_THROW(Unfolded({"{c8", "d"}), std::invalid_argument);
  EXPECT_THROW(Unfolded({"c8}2"}), std::invalid_argument);
  EXPECT_THROW(Unfolded({"{c8}"}), std::invalid_argument);
}

TEST(Dynamic, GrowsFromNameToName) {
  EXPECT_LT(ReadDynamic("ppp"), ReadDynamic("p"));
  EXPECT_LT(ReadDynamic("mf"), ReadDynamic("fff"));
  EXPECT_THROW(ReadDynamic("loud"), std::invalid_argument);
}

}  // namespace
}  // namespace orvane::music
