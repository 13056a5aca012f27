#include "tools/music/token.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace orvane::music {
namespace {

TEST(Token, ReadsPitchOctavesLengthAndMarks) {
  const Token token = ReadToken("(f#''4.>~");
  ASSERT_EQ(token.Tones.size(), 1U);
  EXPECT_EQ(token.Tones[0].Semitone, 6);
  EXPECT_EQ(token.Tones[0].Octaves, 2);
  EXPECT_EQ(token.Length, kQuarter * 3 / 2);
  EXPECT_EQ(token.Stress, 10);
  EXPECT_TRUE(token.OpensSlur);
  EXPECT_FALSE(token.ClosesSlur);
  EXPECT_TRUE(token.Tied);
}

TEST(Token, TellsAFlatFromTheNoteB) {
  EXPECT_EQ(ReadToken("bb4").Tones[0].Semitone, 10);
  EXPECT_EQ(ReadToken("b4").Tones[0].Semitone, 11);
  EXPECT_EQ(ReadToken("eb,8").Tones[0].Octaves, -1);
}

TEST(Token, ReadsRestsChordsVoicesAndBassTones) {
  EXPECT_TRUE(ReadToken("r2").Tones.empty());
  EXPECT_EQ(ReadToken("[c e g]2").Tones.size(), 3U);
  EXPECT_TRUE(ReadToken("*1").whole_chord);
  const Token voice = ReadToken("@3:8");
  EXPECT_EQ(voice.Tones[0].Kind, ToneKind::Voice);
  EXPECT_EQ(voice.Tones[0].Voice, 3);
  EXPECT_EQ(voice.Length, kQuarter / 2);
  const Token bass = ReadToken("F'16!");
  EXPECT_EQ(bass.Tones[0].Kind, ToneKind::Bass);
  EXPECT_EQ(bass.Tones[0].Degree, 'F');
  EXPECT_EQ(bass.touch, Touch::Staccato);
}

TEST(Token, ReadsTripletsAsTwelfths) {
  EXPECT_EQ(ReadToken("c12").Length, kWhole / 12);
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
