#include "tools/music/score.h"

#include <gtest/gtest.h>

#include "tools/music/sheet.h"

namespace orvane::music {
namespace {

const std::string kHead =
    "piece Test \"A test\"\n"
    "key D major\n"
    "tempo 120\n"
    "meter 4/4\n"
    "part tune flute home 5\n"
    "part low finger-bass home 2 floor e1\n"
    "part kit standard-kit\n"
    "pattern beat\n"
    "  kick  X...o...\n"
    "  hat   xxxxxxxx\n";

// The whole score: the head, the form and the sections.
std::string WholeScore(const std::string& form, const std::string& sections) {
  return kHead + "form " + form + "\n" + sections;
}

std::string Fault(const std::string& text) {
  try {
    const Score score = ReadScore(text);
    WriteOut(score);
  } catch (const ScoreError& problem) {
    return problem.what();
  }
  return {};
}

TEST(Score, PlacesSectionsByTheForm) {
  const Score score = ReadScore(
      WholeScore("A B A", "section A 1\n  tune d1 |\nsection B 2\n  tune e2 f# | g1 |\n"));
  const Sheet sheet = WriteOut(score);
  EXPECT_EQ(sheet.End, 4 * kWhole);
  ASSERT_EQ(sheet.sections.size(), 3U);
  EXPECT_EQ(sheet.sections[2].Start, 3 * kWhole);
  ASSERT_EQ(sheet.Parts[0].Notes.size(), 5U);
  EXPECT_EQ(sheet.Parts[0].Notes[0].Pitch, 74);
  EXPECT_EQ(sheet.Parts[0].Notes[4].Start, 3 * kWhole);
}

TEST(Score, JoinsTiedNotesAcrossTheBar) {
  const Score score = ReadScore(WholeScore("A", "section A 2\n  tune d1~ | d2 e |\n"));
  const Sheet sheet = WriteOut(score);
  ASSERT_EQ(sheet.Parts[0].Notes.size(), 2U);
  EXPECT_EQ(sheet.Parts[0].Notes[0].Length, kWhole + kWhole / 2);
}

TEST(Score, FillsALineThatRepeats) {
  const Score score =
      ReadScore(WholeScore("A", "section A 4\n  chords D | A/C# | ...|\n  low R4 F R2 | ...|\n"));
  const Sheet sheet = WriteOut(score);
  ASSERT_EQ(sheet.Parts[1].Notes.size(), 12U);
  EXPECT_EQ(sheet.Parts[1].Notes[0].Pitch, 38);  // d
  EXPECT_EQ(sheet.Parts[1].Notes[1].Pitch, 45);  // its fifth
  EXPECT_EQ(sheet.Parts[1].Notes[3].Pitch, 37);  // c#, the bass of the second chord
}

TEST(Score, LeansOnAnotherSectionAndTransposes) {
  const Score score = ReadScore(WholeScore(
      "A B",
      "section A 1\n  chords D\n  tune d1 |\n  kit beat |\nsection B 1 like A +2\n  low R1 |\n"));
  const Sheet sheet = WriteOut(score);
  EXPECT_EQ(sheet.Parts[0].Notes[1].Pitch, 76);
  EXPECT_EQ(sheet.Parts[1].Notes[0].Pitch, 28);  // e, the lowest above the floor
  EXPECT_EQ(sheet.Parts[2].Notes.size(), 20U);
  EXPECT_EQ(sheet.Parts[2].Notes.back().Pitch, 42);  // drums stay
}

TEST(Score, HoldsTheCommonTonesOfSlurredChords) {
  const std::string bars = "section A 2\n  chords C | Am |\n  tune ";
  const Score struck = ReadScore(WholeScore("A", bars + "*1 | * |\n"));
  EXPECT_EQ(WriteOut(struck).Parts[0].Notes.size(), 6U);
  const Score slurred = ReadScore(WholeScore("A", bars + "(*1 | *) |\n"));
  const Sheet sheet = WriteOut(slurred);
  EXPECT_EQ(sheet.Parts[0].Notes.size(), 4U);  // c and e stay, g goes to a
  int held = 0;
  for (const Note& note : sheet.Parts[0].Notes) held += note.Length == 2 * kWhole ? 1 : 0;
  EXPECT_EQ(held, 2);
}

TEST(Score, GrowsADynamicOverItsStretch) {
  const Score score = ReadScore(WholeScore("A", "section A 2\n  tune \\p..f d1 | e2 \\mf f# |\n"));
  const Sheet sheet = WriteOut(score);
  const auto& notes = sheet.Parts[0].Notes;
  EXPECT_DOUBLE_EQ(notes[0].Loudness, 50);
  EXPECT_GT(notes[1].Loudness, 70);
  EXPECT_LT(notes[1].Loudness, 88);
  EXPECT_DOUBLE_EQ(notes[2].Loudness, 75);
}

TEST(Score, NamesTheLineOfAFault) {
  EXPECT_EQ(Fault(WholeScore("A", "section A 1\n  tune d1 |\n")), "");
  EXPECT_NE(Fault(WholeScore("A", "section A 1\n  tune d2 |\n")).find("line 13"),
            std::string::npos);
  EXPECT_NE(Fault(WholeScore("A", "section A 2\n  tune d1 |\n")).find("1 bars and not 2"),
            std::string::npos);
  EXPECT_NE(Fault(WholeScore("A", "section A 1\n  flute d1 |\n")).find("no part"),
            std::string::npos);
  EXPECT_NE(Fault(WholeScore("X", "section A 1\n  tune d1 |\n")).find("no section"),
            std::string::npos);
  EXPECT_NE(Fault(WholeScore("A", "section A 1\n  tune R1 |\n")).find("no chord"),
            std::string::npos);
  EXPECT_NE(Fault(WholeScore("A", "section A 1\n  kit boom |\n")).find("no pattern"),
            std::string::npos);
  EXPECT_NE(Fault(WholeScore("A", "section A 1\n  tune d1~ |\n")).find("tie"), std::string::npos);
  EXPECT_NE(Fault(WholeScore("A", "section A 2\n  tune d1~ | e1 |\n")).find("tie"),
            std::string::npos);
  EXPECT_NE(Fault("piece X\npart a kazoo\n").find("unknown instrument"), std::string::npos);
  EXPECT_NE(Fault("piece X\npart a flute volume 200\n").find("0 to 127"), std::string::npos);
}

}  // namespace
}  // namespace orvane::music
