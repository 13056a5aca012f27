#include "tools/music/chord.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <set>
#include <stdexcept>

#include "tools/music/pitch.h"

namespace orvane::music {
namespace {

std::set<int> Classes(const std::vector<int>& voicing) {
  std::set<int> classes;
  for (const int pitch : voicing) classes.insert(pitch % 12);
  return classes;
}

TEST(Chord, ReadsRootQualityAndBass) {
  const Chord chord = ReadChord("F#m7/C#");
  EXPECT_EQ(chord.Root, 6);
  EXPECT_EQ(chord.Bass, 1);
  EXPECT_EQ(chord.Third(), 3);
  EXPECT_EQ(chord.Fifth(), 7);
  EXPECT_EQ(chord.Seventh(), 10);
  EXPECT_EQ(ReadChord("Bb").Root, 10);
  EXPECT_EQ(ReadChord("D").Seventh(), 12);
  EXPECT_THROW(ReadChord("H"), std::invalid_argument);
  EXPECT_THROW(ReadChord("Cfoo"), std::invalid_argument);
  EXPECT_THROW(ReadChord("C/x"), std::invalid_argument);
}

TEST(Chord, IsTransposedRoundTheOctave) {
  const Chord chord = Transposed(ReadChord("A/C#"), 5);
  EXPECT_EQ(chord.Root, 2);
  EXPECT_EQ(chord.Bass, 6);
  EXPECT_EQ(Transposed(ReadChord("C"), -1).Root, 11);
}

TEST(Voicing, HoldsTheTonesOfTheChordAboveTheFloor) {
  for (const char* symbol : {"D", "Gmaj7", "Bm7b5", "A7sus4", "E7b9", "Cdim7"}) {
    const Chord chord = ReadChord(symbol);
    const std::vector<int> voicing = Voice(chord, 55, 4, {});
    ASSERT_FALSE(voicing.empty()) << symbol;
    EXPECT_GE(voicing.front(), 55) << symbol;
    EXPECT_LT(voicing.back(), 55 + 24) << symbol;
    EXPECT_LE(voicing.size(), 4U) << symbol;
    for (const int tone : Classes(voicing)) {
      bool of_chord = false;
      for (const int step : chord.Steps) of_chord = of_chord || (chord.Root + step) % 12 == tone;
      EXPECT_TRUE(of_chord) << symbol;
    }
  }
}

TEST(Voicing, MovesByTheSmallestSteps) {
  const std::vector<int> c = Voice(ReadChord("C"), 55, 3, {});
  const std::vector<int> f = Voice(ReadChord("F"), 55, 3, c);
  ASSERT_EQ(c.size(), f.size());
  for (size_t i = 0; i < c.size(); ++i) EXPECT_LE(std::abs(c[i] - f[i]), 4);
}

TEST(Voicing, PartsSemitones) {
  const std::vector<int> voicing = Voice(ReadChord("Fmaj7"), 60, 4, {});
  for (size_t i = 0; i + 1 < voicing.size(); ++i) EXPECT_GT(voicing[i + 1] - voicing[i], 1);
}

TEST(Key, KnowsItsSharps) {
  EXPECT_EQ(ReadKey("D", "major").Sharps, 2);
  EXPECT_EQ(ReadKey("C", "minor").Sharps, -3);
  EXPECT_EQ(ReadKey("F#", "minor").Sharps, 3);
  EXPECT_EQ(ReadKey("Eb", "minor").Sharps, -6);
  EXPECT_THROW(ReadKey("D", "dorian"), std::invalid_argument);
}

TEST(Pitch, HasANameBothWays) {
  EXPECT_EQ(ReadPitch("c4"), 60);
  EXPECT_EQ(ReadPitch("bb2"), 46);
  EXPECT_EQ(PitchName(60), "C4");
  EXPECT_THROW(ReadPitch("c"), std::invalid_argument);
  EXPECT_THROW(ReadPitch("x4"), std::invalid_argument);
}

}  // namespace
}  // namespace orvane::music
