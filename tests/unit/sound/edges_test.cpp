// The sound engine's parts at the edges of what they are asked for.
#include <gtest/gtest.h>

#include <atomic>
#include <filesystem>
#include <thread>
#include <utility>

#include "src/platform/path_text.h"
#include "src/platform/whole_file.h"
#include "src/sound/clip.h"
#include "src/sound/clip_player.h"
#include "src/sound/output.h"
#include "src/sound/play_log.h"
#include "src/sound/recorder.h"
#include "src/sound/song_player.h"
#include "tests/unit/environment.h"
#include "tests/unit/sound/engine.h"

namespace orvane {
namespace {

using namespace test;
using std::chrono::milliseconds;

TEST(SongEdges, APieceBeyondAllTimeIsRefused) {
  Bytes events;
  for (int i = 0; i < 20; ++i) events.insert(events.end(), {0xff, 0xff, 0xff, 0x7f, 0x90, 60, 100});
  EXPECT_FALSE(ReadSong(Join({MidiHeader(0, 1, 96), MidiTrack(events)})));
}

TEST(SongEdges, EitherSystemMessageIsPassedOver) {
  const Bytes events{0, 0xf7, 2, 1, 2, 5, 0x90, 60, 100};
  const auto song = ReadSong(Join({MidiHeader(0, 1, 96), MidiTrack(events)}));
  ASSERT_TRUE(song);
  EXPECT_EQ(song->Ticks, 5);
}

TEST(SongEdges, FramesOfATelevisionAreTwentyFourToThirty) {
  const auto reads = [](std::uint32_t division) {
    return ReadSong(Join({MidiHeader(0, 1, static_cast<int>(division)),
                          MidiTrack({0, 0x90, 60, 100}, 24)}))
        .has_value();
  };
  EXPECT_FALSE(reads(0xe901)) << "23";
  EXPECT_TRUE(reads(0xe801)) << "24";
  EXPECT_TRUE(reads(0xe201)) << "30";
  EXPECT_FALSE(reads(0xe101)) << "31";
  EXPECT_FALSE(reads(0xe800)) << "no tick to a frame";
}

std::shared_ptr<Piece> ReadyPiece() {
  auto piece = std::make_shared<Piece>();
  piece->Notes = *ReadSong(SimpleSong(1));
  piece->Ready = true;
  return piece;
}

TEST(SongPlayer, StandsUntilItIsStarted) {
  SongPlayer player(ReadyPiece(), -1, kRate);
  EXPECT_TRUE(player.Silent());
  player.Step(nullptr);
  EXPECT_FALSE(player.Playing());
  player.Start();
  EXPECT_TRUE(player.Playing());
  EXPECT_FALSE(player.Silent());
}

TEST(SongPlayer, IsSilentOnceItIsClosedWhetherItPlayedOrNot) {
  for (const bool plays : {false, true}) {
    SongPlayer player(ReadyPiece(), -1, kRate);
    if (plays) player.Start();
    player.Close();
    EXPECT_FALSE(player.Silent()) << "it has still to fade out";
    player.Step(nullptr);
    EXPECT_TRUE(player.Silent());
  }
}

TEST(ClipPlayer, AClosedEffectPlaysNoMoreThoughItDiesAway) {
  auto clip = std::make_shared<Clip>();
  clip->Samples = Tone(440, kRate, 0.5, 0.5);
  ClipPlayer player(clip, kRate);
  EXPECT_FALSE(player.Playing());
  player.Start();
  Block block{};
  player.Mix(block);
  EXPECT_TRUE(player.Playing());
  player.Close();
  EXPECT_FALSE(player.Playing());
  EXPECT_FALSE(player.Silent());
}

TEST(Clip, AnEffectOfMoreThanTwoMinutesIsRefused) {
  const auto of = [](int seconds) {
    return Wave(1000, 1, std::vector<std::int16_t>(static_cast<size_t>(seconds) * 1000));
  };
  EXPECT_NE(ReadClip(of(120), 1000), nullptr);
  EXPECT_EQ(ReadClip(of(121), 1000), nullptr);
}

TEST(Clip, ARateThatIsNotToBeBelievedIsRefused) {
  const std::vector<std::int16_t> samples(100);
  EXPECT_EQ(ReadClip(Wave(999, 1, samples), kRate), nullptr);
  EXPECT_NE(ReadClip(Wave(1000, 1, samples), kRate), nullptr);
  EXPECT_NE(ReadClip(Wave(400000, 1, samples), kRate), nullptr);
  EXPECT_EQ(ReadClip(Wave(400001, 1, samples), kRate), nullptr);
}

TEST(ClockOutput, WhatAMachineHasMissedBeyondHalfASecondIsLeftOut) {
  std::atomic<int> calls = 0;
  std::atomic<size_t> most = 0;
  {
    const auto output = OpenClock(1000, [&](float* /*out*/, size_t frames, auto /*from*/) {
      if (calls++ == 0) std::this_thread::sleep_for(milliseconds(1500));
      most = std::max(most.load(), frames);
      return true;
    });
    EXPECT_EQ(output->Delay(), 0);
    for (int i = 0; i < 1000 && calls < 5; ++i) std::this_thread::sleep_for(milliseconds(10));
  }
  EXPECT_GE(calls, 5);
  EXPECT_GT(most, 400u);
  EXPECT_LE(most, 500u);
}

TEST(ClockOutput, AsksMoreSeldomWhereNothingPlays) {
  // The shortest time between two pulls of ten.
  const auto shortest = [](bool plays) {
    using Clock = std::chrono::steady_clock;
    std::atomic<int> pulls = 0;
    Clock::time_point last;
    auto found = Clock::duration::max();
    {
      const auto output = OpenClock(1000, [&](float* /*out*/, size_t /*frames*/, auto /*from*/) {
        const auto before = std::exchange(last, Clock::now());
        if (pulls++ > 0) found = std::min(found, last - before);
        return plays;
      });
      for (int i = 0; i < 1000 && pulls < 10; ++i) std::this_thread::sleep_for(milliseconds(10));
    }
    EXPECT_GE(pulls, 10);
    return found;
  };
  EXPECT_LT(shortest(true), milliseconds(80));
  EXPECT_GE(shortest(false), milliseconds(99));
}

TEST(PlayLog, BeginsOnceAndTellsNothingBefore) {
  const Folder folder;
  const std::string path = folder.Path() + "/log";
  {
    PlayLog log(path, kRate);
    log.Write("too early");
    log.Pulled(kRate, std::chrono::steady_clock::now());
    log.Begin(0.25);
    log.Begin(0.5);
    log.Pulled(kRate, std::chrono::steady_clock::now());
    log.Write("at one second");
  }
  const std::string text = ReadWholeFile(PathOf(path)).value_or("");
  EXPECT_TRUE(text.starts_with("delay 0.250000\n1.")) << text;
  EXPECT_TRUE(text.ends_with(" at one second\n")) << text;
}

TEST(PlayLog, WhatCannotBeWrittenIsLeftOut) {
  const Folder folder;
  const std::string nowhere = folder.Path() + "/none/log";
  PlayLog log(nowhere, kRate);
  log.Begin(0);
  log.Write("lost");
  Recorder recorder(nowhere, kRate);
  const std::vector<float> frames(20);
  recorder.Write(frames.data(), 10);
  EXPECT_FALSE(std::filesystem::exists(PathOf(nowhere)));
}

TEST_F(SoundEngineTest, AFileThatIsTooLargeForASoundDoesNotOpen) {
  const std::filesystem::path file = PathOf(folder_.Path() + "/Sound/Round1.mid");
  SoundEngine engine(ForCaller());
  const auto size = std::filesystem::file_size(file);
  std::filesystem::resize_file(file, 17 << 20);
  EXPECT_EQ(Open(engine, "Round1.mid", "bgm1"), "");
  std::filesystem::resize_file(file, size);
  EXPECT_EQ(Open(engine, "Round1.mid", "bgm1"), "1");
}

TEST(SoundOptions, ARecordingIsWhatTheEnvironmentAsksFor) {
  SetVariable("ORVANE_RECORD", "");
  EXPECT_EQ(SoundOptions::FromEnvironment().RecordFile, "");
  SetVariable("ORVANE_RECORD", "a.wav");
  const SoundOptions options = SoundOptions::FromEnvironment();
  SetVariable("ORVANE_RECORD", "");
  EXPECT_EQ(options.RecordFile, "a.wav");
  EXPECT_EQ(options.Plays, SoundOptions::Sink::Device);
}

}  // namespace
}  // namespace orvane
