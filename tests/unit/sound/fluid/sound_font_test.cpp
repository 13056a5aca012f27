// Music as a sound font makes it.
#include "src/sound/fluid/sound_font.h"

#include <gtest/gtest.h>

#include <array>
#include <filesystem>

#include "src/platform/whole_file.h"
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

// A held note, and an event before its second half; the level and the pitch of that half.
class EventTest : public SoundEngineFontTest {
 protected:
  struct Heard {
    double Level = 0;
    int Crossings = 0;  // of the middle line, upwards
  };

  Heard SecondHalf(const Bytes& event) {
    Bytes events{0, 0xc0, 16, 0, 0x90, 60, 100, 96};
    events.insert(events.end(), event.begin(), event.end());
    folder_.Write("Round2.mid", Join({MidiHeader(0, 1, 96), MidiTrack(events, 96)}));
    SoundEngine engine(ForCaller());
    Open(engine, "Round2.mid", "bgm2");
    engine.WaitUntilReady();
    engine.Send(PlayCommand("bgm2"));
    Pull(engine, 0.6);
    const std::vector<float> half = Pull(engine, 0.3);
    Heard heard{LevelOf(half), 0};
    for (size_t i = 2; i < half.size(); i += 2) {
      if (half[i - 2] < 0 && half[i] >= 0) ++heard.Crossings;
    }
    return heard;
  }
};

TEST_F(EventTest, ABendIsAnotherPitchAndNothingElseIs) {
  const Heard plain = SecondHalf({0xb0, 3, 0});
  EXPECT_GT(plain.Level, 0.001);
  EXPECT_GT(SecondHalf({0xe0, 0x7f, 0x7f}).Crossings, plain.Crossings);
  EXPECT_NEAR(SecondHalf({0xa0, 60, 100}).Crossings, plain.Crossings, 2);
}

TEST_F(EventTest, ExpressionIsLouderOrSofterDownToNothing) {
  const Heard plain = SecondHalf({0xb0, 3, 0});
  EXPECT_LT(SecondHalf({0xb0, 11, 40}).Level, plain.Level / 2);
  EXPECT_LT(SecondHalf({0xb0, 11, 0}).Level, plain.Level / 10);
}

TEST_F(EventTest, PressureOnAChannelTrembles) {
  const Heard plain = SecondHalf({0xb0, 3, 0});
  const Heard pressed = SecondHalf({0xd0, 127});
  EXPECT_GT(pressed.Level, plain.Level / 4);
  EXPECT_NE(pressed.Level, plain.Level);
}

TEST_F(EventTest, ModesThatWouldJoinChannelsAreLeftOut) {
  const Heard plain = SecondHalf({0xb0, 3, 0});
  EXPECT_NEAR(SecondHalf({0xb0, 126, 1}).Level, plain.Level, plain.Level / 10);
  EXPECT_LT(SecondHalf({0xb0, 123, 0}).Level, plain.Level) << "but all notes may be let go";
}

TEST(SoundFont, TheBestOneIsTakenWhereverItLies) {
  const Folder folder;
  const std::filesystem::path one = PathOf(folder.Path()) / "one";
  const std::filesystem::path two = PathOf(folder.Path()) / "two";
  const std::array folders{one, two};
  EXPECT_EQ(FindSoundFontIn(folders), "") << "the folders are not there";
  std::filesystem::create_directories(one);
  std::filesystem::create_directories(two / "FluidR3Mono_GM.sf3");  // no file
  EXPECT_EQ(FindSoundFontIn(folders), "");
  WriteWholeFile(one / "default-GM.sf2", "");
  EXPECT_EQ(FindSoundFontIn(folders), TextOf(one / "default-GM.sf2"));
  WriteWholeFile(two / "default-GM.sf2", "");
  EXPECT_EQ(FindSoundFontIn(folders), TextOf(one / "default-GM.sf2"));
  WriteWholeFile(two / "TimGM6mb.sf2", "");
  EXPECT_EQ(FindSoundFontIn(folders), TextOf(two / "TimGM6mb.sf2"));
}

TEST_F(SoundEngineFontTest, AFontThatIsNoneIsSilence) {
  folder_.Write("Broken.sf2", {'R', 'I', 'F', 'F'});
  SoundOptions options = ForCaller();
  options.FontFile = folder_.Path() + "/Sound/Broken.sf2";
  SoundEngine engine(options);
  Open(engine, "Round1.mid", "bgm1");
  engine.WaitUntilReady();
  engine.Send(PlayCommand("bgm1"));
  EXPECT_EQ(LevelOf(Pull(engine, 1)), 0);
  EXPECT_EQ(Status(engine, "bgm1"), "playing");
}

}  // namespace
}  // namespace orvane
