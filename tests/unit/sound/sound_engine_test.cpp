// The engine as the game sees it: commands in, replies out.
#include "src/sound/sound_engine.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <thread>

#include "src/platform/sound_channels.h"
#include "src/platform/whole_file.h"
#include "tests/unit/sound/engine.h"

namespace orvane {
namespace {

using namespace test;

TEST_F(SoundEngineTest, AnEffectFromOpenToClose) {
  SoundEngine engine(ForCaller());
  EXPECT_EQ(Status(engine, "snd2"), "");
  EXPECT_NE(Open(engine, "Cut.wav", "snd2"), "");
  EXPECT_EQ(Status(engine, "snd2"), "stopped");
  EXPECT_EQ(engine.Send(PlayCommand("snd2")), "");
  EXPECT_EQ(Status(engine, "snd2"), "playing");
  EXPECT_GT(LevelOf(Pull(engine, 0.4)), 0.3);
  EXPECT_EQ(Status(engine, "snd2"), "playing");
  Pull(engine, 0.15);
  EXPECT_EQ(Status(engine, "snd2"), "stopped");
  EXPECT_EQ(engine.Send(CloseCommand("snd2")), "");
  EXPECT_EQ(Status(engine, "snd2"), "");
}

TEST_F(SoundEngineTest, OpenTwiceFailsAndKeepsTheSoundGoing) {
  SoundEngine engine(ForCaller());
  EXPECT_NE(Open(engine, "Cut.wav", "snd2"), "");
  engine.Send(PlayCommand("snd2"));
  EXPECT_EQ(Open(engine, "Cut.wav", "snd2"), "");
  EXPECT_EQ(Status(engine, "snd2"), "playing");
  EXPECT_GT(LevelOf(Pull(engine, 0.1)), 0.3);
}

TEST_F(SoundEngineTest, AClosedChannelOpensAgainFresh) {
  SoundEngine engine(ForCaller());
  Open(engine, "Cut.wav", "snd9");
  engine.Send(PlayCommand("snd9"));
  Pull(engine, 0.1);
  engine.Send(CloseCommand("snd9"));
  engine.Send(PlayCommand("snd9"));
  EXPECT_EQ(Status(engine, "snd9"), "");
  Pull(engine, 0.02);
  EXPECT_EQ(LevelOf(Pull(engine, 0.1)), 0);
  EXPECT_NE(Open(engine, "Cut.wav", "snd9"), "");
  EXPECT_EQ(Status(engine, "snd9"), "stopped");
  engine.Send(PlayCommand("snd9"));
  EXPECT_GT(LevelOf(Pull(engine, 0.1)), 0.3);
}

TEST_F(SoundEngineTest, MissingAndBrokenFilesDoNotOpen) {
  SoundEngine engine(ForCaller());
  const test::Bytes song = test::SimpleSong(1);
  const test::Bytes wave = test::Wave(kRate, 1, test::Tone(440, kRate, 0.1, 0.5));
  folder_.Write("Empty.wav", {});
  folder_.Write("Noise.wav", {'n', 'o', 'i', 's', 'e'});
  folder_.Write("Head.wav", {wave.begin(), wave.begin() + 30});
  folder_.Write("Half.mid", {song.begin(), song.begin() + static_cast<long>(song.size() / 2)});
  for (const std::string file :
       {"None.wav", "None.mid", "Empty.wav", "Noise.wav", "Head.wav", "Half.mid", ""}) {
    EXPECT_EQ(Open(engine, file, "snd3"), "") << file;
    EXPECT_EQ(Status(engine, "snd3"), "") << file;
    EXPECT_EQ(engine.Send(PlayCommand("snd3")), "") << file;
    EXPECT_EQ(engine.Send(CloseCommand("snd3")), "") << file;
  }
  EXPECT_EQ(LevelOf(Pull(engine, 0.1)), 0);
}

// A file's bytes are changed while its time and size stay, so that only one who reads it again
// would see it.
TEST_F(SoundEngineTest, ABrokenFileIsReadAgainOnlyWhenItHasChanged) {
  SoundEngine engine(ForCaller());
  const test::Bytes song = test::SimpleSong(1);
  const std::filesystem::path file = PathOf(folder_.Path()) / "Sound" / "Round3.mid";
  const auto long_ago = std::filesystem::file_time_type::clock::now() - std::chrono::hours(1);
  folder_.Write("Round3.mid", test::Bytes(song.size()));
  std::filesystem::last_write_time(file, long_ago);
  EXPECT_EQ(Open(engine, "Round3.mid", "bgm3"), "");
  folder_.Write("Round3.mid", song);
  std::filesystem::last_write_time(file, long_ago);
  EXPECT_EQ(Open(engine, "Round3.mid", "bgm3"), "");
  std::filesystem::last_write_time(file, long_ago + std::chrono::seconds(1));
  EXPECT_EQ(Open(engine, "Round3.mid", "bgm3"), "1");
}

// What was written a moment ago may be written again within the same tick of the file's clock.
TEST_F(SoundEngineTest, AFileThatWasJustWrittenIsReadAgain) {
  SoundEngine engine(ForCaller());
  const test::Bytes song = test::SimpleSong(1);
  const std::filesystem::path file = PathOf(folder_.Path()) / "Sound" / "Round3.mid";
  folder_.Write("Round3.mid", test::Bytes(song.size()));
  const auto now = std::filesystem::last_write_time(file);
  EXPECT_EQ(Open(engine, "Round3.mid", "bgm3"), "");
  folder_.Write("Round3.mid", song);
  std::filesystem::last_write_time(file, now);
  EXPECT_EQ(Open(engine, "Round3.mid", "bgm3"), "1");
}

double Seconds(std::chrono::steady_clock::duration time) {
  return std::chrono::duration<double>(time).count();
}

TEST_F(SoundEngineTest, LeavingDoesNotWaitForInstruments) {
  folder_.Write("Round1.mid", test::RestlessSong(170000));
  folder_.Write("Battle1.mid", test::RestlessSong(170000));
  std::chrono::steady_clock::time_point begin;
  {
    SoundEngine engine(ForCaller());
    EXPECT_EQ(Open(engine, "Round1.mid", "bgm1"), "1");
    std::this_thread::sleep_for(std::chrono::milliseconds(100));
    begin = std::chrono::steady_clock::now();
  }
  EXPECT_LT(Seconds(std::chrono::steady_clock::now() - begin), 3);
}

TEST_F(SoundEngineTest, NoPieceKeepsTheSoundFromComingOut) {
  folder_.Write("Round1.mid", test::RestlessSong(170000));
  SoundEngine engine(ForCaller());
  EXPECT_EQ(Open(engine, "Round1.mid", "bgm1"), "1");
  engine.Send(PlayCommand("bgm1"));
  engine.WaitUntilReady();
  const auto begin = std::chrono::steady_clock::now();
  Pull(engine, 0.1);
  EXPECT_LT(Seconds(std::chrono::steady_clock::now() - begin), 10);
}

TEST_F(SoundEngineTest, UnknownCommandsAndChannelsAnswerNothing) {
  SoundEngine engine(ForCaller());
  EXPECT_EQ(Open(engine, "Cut.wav", "snd11"), "");
  EXPECT_EQ(Open(engine, "Cut.wav", "bgm0"), "");
  EXPECT_EQ(Open(engine, "Cut.wav", ""), "");
  Open(engine, "Cut.wav", "snd2");
  for (const char* command : {"", "stop snd2", "open", "status", "play", "\"", "close  "}) {
    EXPECT_EQ(engine.Send(command), "") << command;
  }
  EXPECT_EQ(Status(engine, "snd2"), "stopped");
}

TEST_F(SoundEngineTest, AnotherRateAndTwoSidesComeOutAtTheSamePitchAndLength) {
  SoundEngine engine(ForCaller());
  Open(engine, "Fire.wav",
       "snd3");  // 440 Hz on each of 22050 numbers a second, in turn on two sides
  engine.Send(PlayCommand("snd3"));
  const std::vector<float> out = Pull(engine, 0.4);
  int crossings = 0;
  for (size_t i = 4410; i + 2 < out.size(); i += 2) crossings += out[i] < 0 && out[i + 2] >= 0;
  EXPECT_NEAR(crossings, 880 * 0.35, 3);
  EXPECT_EQ(Status(engine, "snd3"), "playing");
  Pull(engine, 0.12);
  EXPECT_EQ(Status(engine, "snd3"), "stopped");
}

TEST_F(SoundEngineTest, DamagedWavesDoNoHarm) {
  SoundEngine engine(ForCaller());
  const test::Bytes wave = test::Wave(kRate, 1, test::Tone(440, kRate, 0.01, 0.5));
  int opened = 0;
  for (size_t place = 0; place < 44; ++place) {
    for (const int value : {0x00, 0x01, 0x7f, 0x80, 0xff}) {
      test::Bytes damaged = wave;
      damaged[place] = static_cast<std::uint8_t>(value);
      folder_.Write("Damaged.wav", damaged);
      if (Open(engine, "Damaged.wav", "snd4").empty()) continue;
      ++opened;
      engine.Send(PlayCommand("snd4"));
      Pull(engine, 0.02);
      engine.Send(CloseCommand("snd4"));
    }
  }
  EXPECT_GT(opened, 0);
}

TEST_F(SoundEngineTest, SilentMusicEndsOnTime) {
  SoundOptions options = ForCaller();
  options.FontFile = "/nowhere/none.sf2";
  SoundEngine engine(options);
  Open(engine, "Round1.mid", "bgm1");
  EXPECT_EQ(Status(engine, "bgm1"), "stopped");
  engine.Send(PlayCommand("bgm1"));
  engine.WaitUntilReady();
  EXPECT_EQ(LevelOf(Pull(engine, 3.8)), 0);
  EXPECT_EQ(Status(engine, "bgm1"), "playing");
  Pull(engine, 0.2);
  EXPECT_EQ(Status(engine, "bgm1"), "stopped");
}

TEST_F(SoundEngineTest, WithoutADeviceTheClockEndsPieces) {
  SoundOptions options;
  options.Plays = SoundOptions::Sink::Clock;
  SoundEngine engine(options);
  Open(engine, "Cut.wav", "snd2");
  Open(engine, "Round1.mid", "bgm1");
  const auto start = std::chrono::steady_clock::now();
  const auto passed = [start] {
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
  };
  engine.Send(PlayCommand("snd2"));
  engine.Send(PlayCommand("bgm1"));
  EXPECT_LT(passed(), 0.2);
  double effect = 0;
  while (passed() < 8 && Status(engine, "bgm1") == "playing") {
    if (effect == 0 && Status(engine, "snd2") == "stopped") effect = passed();
    std::this_thread::sleep_for(std::chrono::milliseconds(5));
  }
  EXPECT_NEAR(effect, 0.5, 0.2);
  EXPECT_NEAR(passed(), 4.0, 0.3);
}

// Channels come and go while another thread plays them and a third reads instruments; a thread
// sanitizer has something to look at here.
TEST_F(SoundEngineTest, ChannelsComeAndGoWhileTheyPlay) {
  SoundOptions options;
  options.Plays = SoundOptions::Sink::Clock;
  options.RecordFile = folder_.Path() + "/busy.wav";
  {
    SoundEngine engine(options);
    for (int round = 0; round < 40; ++round) {
      const bool battle = round % 2 == 1;
      const std::string music = battle ? "bgm4" : "bgm1";
      EXPECT_EQ(Open(engine, battle ? "Battle1.mid" : "Round1.mid", music), "1");
      engine.Send(PlayCommand(music));
      Open(engine, "Cut.wav", "snd2");
      engine.Send(PlayCommand("snd2"));
      std::this_thread::sleep_for(std::chrono::milliseconds(20));
      EXPECT_EQ(Status(engine, music), "playing");
      EXPECT_EQ(Status(engine, "snd2"), "playing");
      engine.Send(CloseCommand(music));
      if (battle) engine.Send(CloseCommand("snd2"));
    }
  }
  // A header and, at two sides of 16 bits, more than half a second.
  EXPECT_GT(std::filesystem::file_size(options.RecordFile), 44U + 4 * kRate / 2);
}

// Lines of the log beside a recording: the place and what happened there.
std::vector<std::pair<double, std::string>> ReadLog(const std::string& path) {
  std::ifstream file(path + ".log");
  std::vector<std::pair<double, std::string>> lines;
  std::string line;
  std::getline(file, line);
  EXPECT_EQ(line, "delay 0.000000");
  while (std::getline(file, line)) {
    lines.emplace_back(std::stod(line), line.substr(line.find(' ') + 1));
  }
  return lines;
}

TEST_F(SoundEngineTest, ALogTellsBesideARecordingWhatWasAskedForAndWhere) {
  SoundOptions options;
  options.Plays = SoundOptions::Sink::Clock;
  options.RecordFile = folder_.Path() + "/told.wav";
  {
    SoundEngine engine(options);
    std::this_thread::sleep_for(std::chrono::milliseconds(100));
    Open(engine, "Cut.wav", "snd2");
    Open(engine, "Cut.wav", "snd2");  // open already: nothing happens
    engine.Send(PlayCommand("snd2"));
    Status(engine, "snd2");
    engine.Note("painted Main");
    std::this_thread::sleep_for(std::chrono::milliseconds(200));
    engine.Send(CloseCommand("snd2"));
    std::this_thread::sleep_for(std::chrono::milliseconds(50));
  }
  const auto lines = ReadLog(options.RecordFile);
  ASSERT_EQ(lines.size(), 4U);
  EXPECT_EQ(lines[0].second, "open snd2");
  EXPECT_EQ(lines[1].second, "play snd2");
  EXPECT_EQ(lines[2].second, "painted Main");
  EXPECT_EQ(lines[3].second, "close snd2");
  // The tone begins in the recording where the log says that it was started.
  const std::string bytes = ReadWholeFile(options.RecordFile).value_or("");
  size_t first = 44;
  while (first + 4 <= bytes.size() && bytes[first + 1] == 0) first += 4;
  EXPECT_NEAR(static_cast<double>(first - 44) / 4 / kRate, lines[1].first, 0.005);
  EXPECT_GT(lines[1].first, 0.05);
  EXPECT_NEAR(lines[3].first - lines[1].first, 0.2, 0.1);
}

TEST_F(SoundEngineTest, ARecordingHoldsWhatWasPlayed) {
  const std::string path = folder_.Path() + "/record.wav";
  std::vector<float> played;
  {
    SoundOptions options = ForCaller();
    options.RecordFile = path;
    SoundEngine engine(options);
    Open(engine, "Cut.wav", "snd2");
    engine.Send(PlayCommand("snd2"));
    played = Pull(engine, 0.3);
  }
  const std::string bytes = ReadWholeFile(path).value_or("");
  ASSERT_EQ(bytes.size(), 44 + 2 * played.size());
  EXPECT_EQ(bytes.substr(0, 4), "RIFF");
  EXPECT_EQ(bytes.substr(36, 4), "data");
  test::Bytes size;
  test::PutLittle(size, static_cast<std::uint32_t>(2 * played.size()), 4);
  EXPECT_EQ(bytes.substr(40, 4), std::string(size.begin(), size.end()));
  for (size_t i = 0; i < played.size(); ++i) {
    const auto low = static_cast<unsigned char>(bytes[44 + 2 * i]);
    const auto high = static_cast<unsigned char>(bytes[45 + 2 * i]);
    const auto level = static_cast<std::int16_t>(low | (high << 8));
    ASSERT_NEAR(static_cast<float>(level) / 32767.0F, played[i], 0.0001F) << i;
  }
}

}  // namespace
}  // namespace orvane
