#include <gtest/gtest.h>

#include <stdexcept>

#include "tools/music/checks.h"
#include "tools/music/performance.h"

namespace orvane::music {
namespace {

constexpr uint8_t kOn = 0x90;
constexpr uint8_t kOff = 0x80;

// A sound file of one part: a flute that plays quarter notes for a whole bar.
MidiFile Plain() {
  MidiFile file;
  MidiTrack conductor;
  conductor.End = kWhole;
  conductor.events.push_back({0, 0xFF, kMetaTempo, 0, std::string("\x07\xA1\x20", 3)});
  conductor.events.push_back({0, 0xFF, kMetaKey, 0, std::string("\x02\x00", 2)});
  MidiTrack flute;
  flute.End = kWhole;
  flute.events.push_back({0, 0xFF, kMetaName, 0, "flute"});
  flute.events.push_back({0, 0xC0, 73, 0, {}});
  for (int i = 0; i < 4; ++i) {
    flute.events.push_back({i * kQuarter, kOn, 74, 80, {}});
    flute.events.push_back({(i + 1) * kQuarter - 1, kOff, 74, 0, {}});
  }
  file.Tracks = {conductor, flute};
  return file;
}

bool Finds(const MidiFile& file, const std::string& words) {
  for (const std::string& fault : CheckPiece("Test", ReadMidi(WriteMidi(file)))) {
    if (fault.find(words) != std::string::npos) return true;
  }
  return false;
}

TEST(MidiFile, ReadsWhatItWrites) {
  const std::string bytes = WriteMidi(Plain());
  const MidiFile read = ReadMidi(bytes);
  EXPECT_EQ(read.Format, 1);
  EXPECT_EQ(read.TicksPerQuarter, 480);
  ASSERT_EQ(read.Tracks.size(), 2U);
  EXPECT_EQ(read.Tracks[1].End, kWhole);
  EXPECT_EQ(read.Tracks[1].events.size(), Plain().Tracks[1].events.size());
  EXPECT_EQ(WriteMidi(read), bytes);
}

TEST(MidiFile, RefusesADamagedFile) {
  const std::string bytes = WriteMidi(Plain());
  EXPECT_THROW(ReadMidi(""), std::runtime_error);
  EXPECT_THROW(ReadMidi("MThd"), std::runtime_error);
  EXPECT_THROW(ReadMidi(bytes.substr(0, bytes.size() - 1)), std::runtime_error);
  EXPECT_THROW(ReadMidi(bytes + "x"), std::runtime_error);
  std::string no_end = bytes;
  no_end[no_end.size() - 2] = 0x01;  // the end of the last track made a text
  EXPECT_THROW(ReadMidi(no_end), std::runtime_error);
}

TEST(Checks, PassASoundFile) {
  EXPECT_TRUE(CheckPiece("Test", Plain()).empty());
}

TEST(Checks, FindEveryFault) {
  MidiFile file = Plain();
  file.Format = 0;
  EXPECT_TRUE(Finds(file, "format 1"));

  file = Plain();
  file.Tracks[1].events[2].Tick = kQuarter / 2;
  EXPECT_TRUE(Finds(file, "silence at the start"));

  file = Plain();
  file.Tracks[1].events.back().Tick -= kQuarter / 2;
  EXPECT_TRUE(Finds(file, "silence at the end"));

  file = Plain();
  file.Tracks[1].events.pop_back();
  EXPECT_TRUE(Finds(file, "never ended"));

  file = Plain();
  file.Tracks[1].events[3].Tick = kQuarter + 10;
  EXPECT_TRUE(Finds(file, "struck while it sounds"));

  file = Plain();
  for (MidiEvent& event : file.Tracks[1].events) {
    if ((event.Status & 0xE0) == 0x80) event.Data1 = 40;
  }
  EXPECT_TRUE(Finds(file, "leaves the range of flute"));

  file = Plain();
  for (uint8_t i = 0; i < 25; ++i) {
    file.Tracks[1].events.push_back(
        {100, kOn, static_cast<uint8_t>(60 + i + (i > 13 ? 1 : 0)), 60, {}});
    file.Tracks[1].events.push_back(
        {200, kOff, static_cast<uint8_t>(60 + i + (i > 13 ? 1 : 0)), 0, {}});
  }
  EXPECT_TRUE(Finds(file, "notes at once"));

  file = Plain();
  file.Tracks[0].events.push_back({kQuarter, 0xFF, kMetaKey, 0, std::string("\x03\x00", 2)});
  EXPECT_TRUE(Finds(file, "key at the end"));

  file = Plain();
  file.Tracks[0].events.push_back({kQuarter, 0xFF, kMetaTempo, 0, std::string("\x1E\x84\x80", 3)});
  EXPECT_TRUE(Finds(file, "tempo at the end"));

  file = Plain();
  file.Tracks[0].End -= 1;
  EXPECT_TRUE(Finds(file, "different lengths"));

  file = Plain();
  bool too_short = false;
  for (const std::string& fault : CheckPiece("Round1", file)) {
    too_short = too_short || fault.find("lasts") != std::string::npos;
  }
  EXPECT_TRUE(too_short);
}

TEST(Checks, HearASemitoneBetweenTwoParts) {
  MidiFile file = Plain();
  MidiTrack other = file.Tracks[1];
  for (MidiEvent& event : other.events) {
    if ((event.Status & 0xE0) == 0x80) event.Data1 = 75;
    if (event.Status != 0xFF) event.Status = static_cast<uint8_t>(event.Status | 1);
  }
  EXPECT_TRUE(Frictions(CollectNotes(file)).empty());
  file.Tracks.push_back(other);
  EXPECT_EQ(Frictions(CollectNotes(file)).size(), 4U);
}

TEST(Performance, IsTheSameEveryTimeAndKeepsToItsEnds) {
  const Score score = ReadScore(
      "piece Test\nkey D major\ntempo 120\nmeter 4/4\npoll 100\npart tune flute home 5 feel 20 "
      "vibrato 30\n"
      "form A\nsection A 2\n  tune (d8 d d d d2) | d1 |\n");
  const MidiFile file = Perform(WriteOut(score));
  EXPECT_EQ(WriteMidi(file), WriteMidi(Perform(WriteOut(score))));
  // Half of the 100 ms at 120 quarters a minute are 48 ticks.
  EXPECT_EQ(file.Tracks[1].End, 2 * kWhole - 48);
  EXPECT_TRUE(CheckPiece("Test", file).empty());
}

}  // namespace
}  // namespace orvane::music
