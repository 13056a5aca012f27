// The game's own pieces and effects, played by the engine as the game plays them.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "src/platform/sound_channels.h"
#include "src/platform/whole_file.h"
#include "src/sound/song.h"
#include "src/sound/sound_engine.h"
#include "src/sound/synth.h"
#include "tests/sound/listening.h"

namespace orvane {
namespace {

using test::Recording;

constexpr const char* kFolder = ORVANE_GAME_FOLDER;

SoundOptions ForCaller() {
  SoundOptions options;
  options.Plays = SoundOptions::Sink::Caller;
  return options;
}

Recording Pull(SoundEngine& engine, double seconds) {
  std::vector<float> frames(2 * static_cast<size_t>(seconds * SoundEngine::Rate));
  engine.Pull(frames.data(), frames.size() / 2);
  Recording recording;
  recording.Add(frames);
  return recording;
}

double SecondsOf(const std::string& file) {
  const std::string bytes = ReadWholeFile(std::string(kFolder) + "/Sound/" + file).value_or("");
  const auto song = ReadSong(std::vector<std::uint8_t>(bytes.begin(), bytes.end()));
  return song ? song->Seconds : 0;
}

// A piece, and how often its keeper asks whether it has ended.
struct Kept {
  const char* Alias;
  double Asks;  // seconds from one question to the next
};

class PieceTest : public testing::TestWithParam<Kept> {
 protected:
  void SetUp() override {
    if (Synth::Load("", SoundEngine::Rate) == nullptr) GTEST_SKIP() << "there is no sound font";
  }
};

TEST_P(PieceTest, LoopsWithoutAGapOrAClick) {
  const std::string alias = GetParam().Alias;
  SoundEngine engine(ForCaller());
  ASSERT_EQ(engine.Send(OpenCommand(kFolder, SoundFile(alias), alias)), "1");
  engine.WaitUntilReady();
  const double length = SecondsOf(SoundFile(alias));
  ASSERT_GT(length, 1);
  Recording heard;
  while (heard.Seconds() < length + 3) {
    if (engine.Send(StatusCommand(alias)) == "stopped") engine.Send(PlayCommand(alias));
    const Recording part = Pull(engine, GetParam().Asks);
    heard.Left.insert(heard.Left.end(), part.Left.begin(), part.Left.end());
    heard.Right.insert(heard.Right.end(), part.Right.begin(), part.Right.end());
  }
  EXPECT_GT(test::LevelOf(heard), 0.01);
  EXPECT_LT(test::PeakOf(heard), 0.96);
  const Recording loop = heard.Part(length - 1.5, length + 1.5);
  for (const auto& gap : test::FindGaps(loop, 0.05)) {
    ADD_FAILURE() << "a gap of " << gap.Seconds << " s, " << gap.From - 1.5 << " s from the loop";
  }
  for (const auto& click : test::FindClicks(loop)) {
    ADD_FAILURE() << "a click of " << click.Leap << ", " << click.At - 1.5 << " s from the loop";
  }
  // The second round begins on the beat: it sounds as the first did.
  EXPECT_NEAR(test::LevelOf(heard.Part(length, length + 2)) / test::LevelOf(heard.Part(0, 2)), 1,
              0.35);
}

TEST_P(PieceTest, ClosesQuicklyWithoutAClick) {
  const std::string alias = GetParam().Alias;
  SoundEngine engine(ForCaller());
  engine.Send(OpenCommand(kFolder, SoundFile(alias), alias));
  engine.WaitUntilReady();
  engine.Send(PlayCommand(alias));
  const Recording before = Pull(engine, 8);
  engine.Send(CloseCommand(alias));
  const Recording after = Pull(engine, 1);
  EXPECT_GT(test::LevelOf(before), 0.005);
  EXPECT_TRUE(test::FindClicks(after).empty());
  EXPECT_LT(test::LevelOf(after.Part(0.3, 1)), test::LevelOf(before) / 20);
}

INSTANTIATE_TEST_SUITE_P(All, PieceTest,
                         testing::Values(Kept{"bgm1", 0.033}, Kept{"bgm2", 0.033},
                                         Kept{"bgm3", 0.033}, Kept{"bgm4", 0.1}, Kept{"bgm5", 0.1},
                                         Kept{"bgm6", 0.1}, Kept{"bgm7", 0.05},
                                         Kept{"bgm8", 0.033}),
                         [](const auto& tested) { return std::string(tested.param.Alias); });

class EffectTest : public testing::TestWithParam<const char*> {
 protected:
  EffectTest() {
    opened_ = engine_.Send(OpenCommand(kFolder, SoundFile(GetParam()), GetParam()));
    Pull(engine_, 0.1);
  }
  void Play() { engine_.Send(PlayCommand(GetParam())); }

  SoundEngine engine_{ForCaller()};
  std::string opened_;
};

TEST_P(EffectTest, SetsInWithItsCommandAndEndsInSilence) {
  ASSERT_EQ(opened_, "1");
  Play();
  const Recording heard = Pull(engine_, 5);
  const auto onsets = test::FindOnsets(heard);
  ASSERT_FALSE(onsets.empty());
  EXPECT_LT(onsets[0], 0.02);
  EXPECT_EQ(engine_.Send(StatusCommand(GetParam())), "stopped");
  EXPECT_LT(test::PeakOf(heard.Part(4.8, 5)), 0.0001);
}

// Some moves start their effect over on every frame, nineteen times.
TEST_P(EffectTest, AStartOnEveryFrameIsARollWithoutClicks) {
  ASSERT_EQ(opened_, "1");
  Play();
  const Recording once = Pull(engine_, 5);
  Recording roll;
  for (int frame = 0; frame < 19; ++frame) {
    Play();
    const Recording part = Pull(engine_, 0.016);
    roll.Left.insert(roll.Left.end(), part.Left.begin(), part.Left.end());
    roll.Right.insert(roll.Right.end(), part.Right.begin(), part.Right.end());
  }
  EXPECT_LE(test::FindClicks(roll).size(), test::FindClicks(once).size());
  EXPECT_TRUE(test::FindGaps(roll.Part(0.02, 0.3), 0.01).empty());
  EXPECT_LT(test::PeakOf(roll), 0.96);
  // About as loud as the effect is by itself, neither a whisper nor twice as loud.
  const double ratio = test::LevelOf(roll) / test::LevelOf(once.Part(0, roll.Seconds()));
  EXPECT_GT(ratio, 0.5);
  EXPECT_LT(ratio, 2);
}

INSTANTIATE_TEST_SUITE_P(All, EffectTest,
                         testing::Values("snd1", "snd2", "snd3", "snd4", "snd5", "snd6", "snd7",
                                         "snd8", "snd9", "snd10"),
                         [](const auto& tested) { return std::string(tested.param); });

TEST(Effects, AllTogetherOverABattleDoNotClip) {
  SoundEngine engine(ForCaller());
  engine.Send(OpenCommand(kFolder, SoundFile("bgm4"), "bgm4"));
  engine.WaitUntilReady();
  engine.Send(PlayCommand("bgm4"));
  for (int i = 1; i <= 10; ++i) {
    const std::string alias = "snd" + std::to_string(i);
    engine.Send(OpenCommand(kFolder, SoundFile(alias), alias));
    engine.Send(PlayCommand(alias));
  }
  const Recording heard = Pull(engine, 2);
  EXPECT_LT(test::PeakOf(heard), 0.96);
  EXPECT_GT(test::LevelOf(heard), 0.05);
}

}  // namespace
}  // namespace orvane
