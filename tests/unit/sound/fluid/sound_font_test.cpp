// Music as a sound font makes it.
#include "src/sound/fluid/sound_font.h"

#include <gtest/gtest.h>

#include "tests/unit/sound/engine.h"

namespace orvane {
namespace {

using namespace test;

// With an installed sound font music is heard; each of these is skipped where there is none.
class SoundEngineFontTest : public SoundEngineTest {
 protected:
  void SetUp() override {
    if (FindSoundFont().empty()) GTEST_SKIP() << "no sound font is installed";
  }
};

TEST_F(SoundEngineFontTest, MusicSoundsAndItsLastNoteRingsOn) {
  SoundEngine engine(ForCaller());
  Open(engine, "Round1.mid", "bgm1");
  engine.WaitUntilReady();
  EXPECT_EQ(LevelOf(Pull(engine, 0.1)), 0);
  engine.Send(PlayCommand("bgm1"));
  EXPECT_GT(LevelOf(Pull(engine, 3.9)), 0.01);
  EXPECT_EQ(Status(engine, "bgm1"), "stopped");
  EXPECT_GT(LevelOf(Pull(engine, 0.1)), 0.01);
  EXPECT_GT(LevelOf(Pull(engine, 0.1)), 0.001);
  Pull(engine, 10);
  EXPECT_LT(LevelOf(Pull(engine, 1)), 0.0001);
}

TEST_F(SoundEngineFontTest, ALoopKeepsTheBeatAndLeavesNoGap) {
  SoundEngine engine(ForCaller());
  Open(engine, "Round1.mid", "bgm1");
  engine.WaitUntilReady();
  std::vector<float> all;
  for (int tick = 0; tick < 130; ++tick) {  // asked for ten times a second, through three rounds
    if (Status(engine, "bgm1") == "stopped") engine.Send(PlayCommand("bgm1"));
    const std::vector<float> out = Pull(engine, 0.1);
    all.insert(all.end(), out.begin(), out.end());
  }
  for (size_t i = kRate / 5; i + kRate / 50 < all.size() / 2; i += kRate / 50) {
    const std::vector<float> part(all.begin() + static_cast<long>(2 * i),
                                  all.begin() + static_cast<long>(2 * (i + kRate / 50)));
    EXPECT_GT(LevelOf(part), 0.002) << static_cast<double>(i) / kRate;
  }
}

TEST_F(SoundEngineFontTest, CloseSilencesMusicAndTheNextPieceSounds) {
  SoundEngine engine(ForCaller());
  Open(engine, "Round1.mid", "bgm1");
  engine.WaitUntilReady();
  engine.Send(PlayCommand("bgm1"));
  Pull(engine, 1);
  engine.Send(CloseCommand("bgm1"));
  EXPECT_EQ(Status(engine, "bgm1"), "");
  Pull(engine, 0.4);
  EXPECT_LT(LevelOf(Pull(engine, 0.5)), 0.001);
  Open(engine, "Battle1.mid", "bgm4");
  engine.WaitUntilReady();
  engine.Send(PlayCommand("bgm4"));
  EXPECT_GT(LevelOf(Pull(engine, 1)), 0.01);
}

TEST_F(SoundEngineFontTest, ANoteWithoutAnEndEndsWithItsPiece) {
  const test::Bytes stuck{0, 0xc0, 16, 0, 0x90, 60, 100};  // an organ: it would sound for ever
  folder_.Write("Boss.mid", test::Join({test::MidiHeader(0, 1, 96), test::MidiTrack(stuck, 96)}));
  SoundEngine engine(ForCaller());
  Open(engine, "Boss.mid", "bgm5");
  engine.WaitUntilReady();
  engine.Send(PlayCommand("bgm5"));
  EXPECT_GT(LevelOf(Pull(engine, 0.5)), 0.01);
  Pull(engine, 2);
  EXPECT_LT(LevelOf(Pull(engine, 0.5)), 0.0001);
}

TEST_F(SoundEngineFontTest, PiecesOnTwoChannelsAreIndependent) {
  SoundEngine engine(ForCaller());
  Open(engine, "Round1.mid", "bgm1");
  Open(engine, "Battle1.mid", "bgm4");
  engine.WaitUntilReady();
  engine.Send(PlayCommand("bgm1"));
  engine.Send(PlayCommand("bgm4"));
  Pull(engine, 1);
  engine.Send(CloseCommand("bgm1"));
  Pull(engine, 0.5);
  EXPECT_EQ(Status(engine, "bgm4"), "playing");
  EXPECT_GT(LevelOf(Pull(engine, 0.5)), 0.01);
}

}  // namespace
}  // namespace orvane
