// Reading pieces: their length by the tempo map, to the tick, and what is refused.
#include "src/sound/song.h"

#include <gtest/gtest.h>

#include "src/sound/tempo_map.h"
#include "tests/unit/sound/processor_time.h"
#include "tests/unit/sound/sound_files.h"

namespace orvane {
namespace {

using test::Bytes;
using test::Join;
using test::MidiHeader;
using test::MidiTrack;

// A beat of 500000, then one of 250000, then half a one of 1000000 microseconds.
const Bytes kTempos{0,    0xff, 0x51, 3,  0x07, 0xa1, 0x20, 96,   0xff, 0x51, 3,
                    0x03, 0xd0, 0x90, 96, 0xff, 0x51, 3,    0x0f, 0x42, 0x40};

TEST(Song, LengthFollowsTheTempoMap) {
  const auto song = ReadSong(Join({MidiHeader(1, 1, 96), MidiTrack(kTempos, 48)}));
  ASSERT_TRUE(song);
  EXPECT_EQ(song->Ticks, 240);
  EXPECT_DOUBLE_EQ(song->Seconds, 0.5 + 0.25 + 0.5);
}

TEST(Song, TempoOfOneTrackHoldsForAll) {
  const Bytes notes{0, 0x90, 60, 100, 96, 0x90, 62, 100, 96, 0x90, 64, 100};
  const auto song =
      ReadSong(Join({MidiHeader(1, 2, 96), MidiTrack(kTempos), MidiTrack(notes, 96)}));
  ASSERT_TRUE(song);
  ASSERT_EQ(song->Events.size(), 4U);  // the instrument that was not named, and three notes
  EXPECT_DOUBLE_EQ(song->Events[1].Seconds, 0);
  EXPECT_DOUBLE_EQ(song->Events[2].Seconds, 0.5);
  EXPECT_DOUBLE_EQ(song->Events[3].Seconds, 0.75);
  EXPECT_EQ(song->Ticks, 288);
  EXPECT_DOUBLE_EQ(song->Seconds, 1.75);
}

TEST(Song, NoTempoMeansTwoBeatsASecond) {
  const auto song = ReadSong(test::SimpleSong(3));
  ASSERT_TRUE(song);
  EXPECT_EQ(song->Ticks, 3 * 4 * 96);
  EXPECT_DOUBLE_EQ(song->Seconds, 6);
}

TEST(Song, CountsTelevisionFrames) {
  const Bytes note{0, 0x90, 60, 100};
  // 25 frames of 4 ticks a second; a tempo changes nothing.
  const auto song = ReadSong(Join({MidiHeader(0, 1, 0xe704), MidiTrack(note, 50)}));
  ASSERT_TRUE(song);
  EXPECT_DOUBLE_EQ(song->Seconds, 0.5);
  // "29": thirty thousand frames in 1001 seconds.
  const auto drop = ReadSong(Join({MidiHeader(0, 1, 0xe301), MidiTrack(note, 30)}));
  ASSERT_TRUE(drop);
  EXPECT_DOUBLE_EQ(drop->Seconds, 1.001);
}

TEST(Song, RunningStatusAndSystemMessages) {
  const Bytes events{0, 0x93, 60, 100, 10, 60, 0, 0, 0xf0, 3, 0x7e, 0x7f, 0xf7, 5, 0x83, 61, 64};
  const auto song = ReadSong(Join({MidiHeader(0, 1, 96), MidiTrack(events)}));
  ASSERT_TRUE(song);
  ASSERT_EQ(song->Events.size(), 4U);
  EXPECT_EQ(song->Events[0].Kind(), kProgram);
  EXPECT_EQ(song->Events[2].Kind(), kNoteOn);
  EXPECT_EQ(song->Events[2].Second, 0);
  EXPECT_EQ(song->Events[3].Kind(), 8);
  EXPECT_EQ(song->Events[3].Channel(), 3);
  EXPECT_EQ(song->Ticks, 15);
}

TEST(Song, ForeignChunksArePassedOver) {
  Bytes foreign{'X', 'F', 'I', 'H', 0, 0, 0, 2, 1, 2};
  EXPECT_TRUE(ReadSong(Join({MidiHeader(1, 1, 96), foreign, MidiTrack({0, 0x90, 60, 100})})));
}

TEST(Song, EveryCutIsRefused) {
  const Bytes whole = test::SimpleSong(1);
  ASSERT_TRUE(ReadSong(whole));
  for (size_t length = 0; length < whole.size(); ++length) {
    EXPECT_FALSE(ReadSong(std::span(whole).first(length))) << length;
  }
}

TEST(Song, NonsenseIsRefused) {
  const Bytes note{0, 0x90, 60, 100};
  EXPECT_FALSE(ReadSong(Join({MidiHeader(2, 1, 96), MidiTrack(note)})));
  EXPECT_FALSE(ReadSong(Join({MidiHeader(1, 0, 96), MidiTrack(note)})));
  EXPECT_FALSE(ReadSong(Join({MidiHeader(1, 1, 0), MidiTrack(note)})));
  EXPECT_FALSE(ReadSong(Join({MidiHeader(1, 1, 0x8100), MidiTrack(note)})));
  EXPECT_FALSE(ReadSong(Join({MidiHeader(1, 1, 96), MidiTrack({0, 60, 100})})));
  EXPECT_FALSE(ReadSong(Join({MidiHeader(1, 1, 96), MidiTrack({0, 0x90, 60, 0x80})})));
  EXPECT_FALSE(ReadSong(Join({MidiHeader(1, 1, 96), MidiTrack({0, 0xf4})})));
  EXPECT_FALSE(
      ReadSong(Join({MidiHeader(1, 1, 96), MidiTrack({0xff, 0xff, 0xff, 0xff, 0x7f, 0x90})})));
}

// Whatever is in the file, reading it ends and stays within it; the sanitizers watch.
TEST(Song, DamagedFilesDoNoHarm) {
  const Bytes whole = Join({MidiHeader(1, 2, 96), MidiTrack(kTempos, 48), test::SimpleSong(1)});
  int read = 0;
  for (size_t place = 0; place < whole.size(); ++place) {
    for (const int value : {0x00, 0x2f, 0x7f, 0x80, 0xff}) {
      Bytes damaged = whole;
      damaged[place] = static_cast<std::uint8_t>(value);
      const auto song = ReadSong(damaged);
      if (song) {
        ++read;
        EXPECT_GE(song->Seconds, 0);
      }
    }
  }
  EXPECT_GT(read, 0);
}

TEST(Song, PatchesAreNamedOnce) {
  const Bytes events{0,  0xc0, 48,   0, 0xb1, 0,    8,  0,   0xc1, 5,    0, 0xc2,
                     48, 0,    0xc9, 0, 0,    0x9a, 60, 100, 0,    0xca, 48};
  const auto song = ReadSong(Join({MidiHeader(0, 1, 96), MidiTrack(events)}));
  ASSERT_TRUE(song);
  const std::vector<Patch> expected{{0, 0}, {0, 48}, {8, 5}, {kDrumBank, 0}};
  EXPECT_EQ(PatchesOf(*song), expected);
}

TEST(Song, ManyPatchesTakeNoTime) {
  const auto song = ReadSong(test::RestlessSong(160000));
  ASSERT_TRUE(song);
  std::vector<Patch> patches;
  EXPECT_LT(test::TimeOf([&] { patches = PatchesOf(*song); }), 0.1);
  EXPECT_EQ(patches.size(), 128U * 128U);
  const Patch last{127, 127};
  EXPECT_EQ(patches.back(), last);
}

TEST(Song, MoreThanAnyoneCanHearIsRefused) {
  EXPECT_TRUE(ReadSong(test::RestlessSong(170000)));
  EXPECT_FALSE(ReadSong(test::RestlessSong(180000)));
  Bytes tempos;
  for (int i = 0; i < 530000; ++i) {
    for (const int byte : {0, 0xff, 0x51, 0}) tempos.push_back(static_cast<std::uint8_t>(byte));
  }
  EXPECT_FALSE(ReadSong(Join({MidiHeader(0, 1, 96), MidiTrack(tempos)})));
}

TEST(TempoMap, StaysExactOverAnHour) {
  TempoMap tempos(480, 333333);
  for (int beat = 1; beat < 20000; ++beat) tempos.Add(beat * 480, beat % 2 == 0 ? 333333 : 333334);
  EXPECT_DOUBLE_EQ(tempos.Seconds(20000 * 480), (10000 * 333333.0 + 10000 * 333334.0) / 1e6);
}

TEST(TempoMap, OrderDoesNotMatterAndTheLastAtATickHolds) {
  TempoMap tempos(100);
  tempos.Add(200, 1000000);
  tempos.Add(100, 700000);
  tempos.Add(100, 250000);
  tempos.Add(150, 0);
  EXPECT_DOUBLE_EQ(tempos.Seconds(50), 0.25);
  EXPECT_DOUBLE_EQ(tempos.Seconds(300), 0.5 + 0.25 + 1.0);
}

}  // namespace
}  // namespace orvane
