// Music as a sound font makes it.
#include "src/sound/fluid/sound_font.h"

#include <gtest/gtest.h>

#include <array>
#include <filesystem>
#include <future>
#include <stop_token>
#include <thread>

#include "src/platform/whole_file.h"
#include "src/sound/song_player.h"
#include "src/sound/synth.h"
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

TEST_F(EventTest, BankNumbersAreNoControllers) {
  const Heard plain = SecondHalf({0xb0, 3, 0});
  for (const std::uint8_t bank : {std::uint8_t{0}, std::uint8_t{32}}) {
    EXPECT_NEAR(SecondHalf({0xb0, bank, 1}).Level, plain.Level, plain.Level / 100);
  }
}

// The orchestra by itself, with pieces that ask for instruments.
class OrchestraTest : public SoundEngineFontTest {
 protected:
  // A piece that chooses these instruments in turn on its first channel.
  static std::unique_ptr<Piece> Choosing(const std::vector<int>& programs) {
    Bytes events;
    for (const int program : programs) {
      const Bytes choice{0, 0xc0, static_cast<std::uint8_t>(program), 0, 0x90, 60, 100};
      events.insert(events.end(), choice.begin(), choice.end());
    }
    auto piece = std::make_unique<Piece>();
    piece->Notes = *ReadSong(Join({MidiHeader(0, 1, 96), MidiTrack(events)}));
    return piece;
  }
  // How loud a note of an instrument is on bank 0.
  double LevelOfNote(Synth& synth, int program) const {
    synth.Clear(0);
    return LevelOnTop(synth, program);
  }
  double LevelOnTop(Synth& synth, int program) const {
    synth.Send(0, {0, 0xc0, static_cast<std::uint8_t>(program), 0});
    synth.Send(0, {0, 0x90, 60, 100});
    std::vector<float> heard;
    for (int i = 0; i < 100; ++i) {
      Block block{};
      synth.Render(block);
      heard.insert(heard.end(), block.begin(), block.end());
    }
    synth.Send(0, {0, 0x80, 60, 0});
    return LevelOf(heard);
  }
};

TEST_F(OrchestraTest, WhatNobodyPreparedIsSilent) {
  const auto synth = Synth::Load("", kRate);
  synth->Begin(0, *Choosing({16}));
  EXPECT_LT(LevelOfNote(*synth, 16), 0.00001);
}

TEST_F(OrchestraTest, WhatHasNotBeenReadWhenItIsAskedToStopStaysUnread) {
  const auto synth = Synth::Load("", kRate);
  std::stop_source leaving;
  leaving.request_stop();
  synth->Prepare(*Choosing({16}), leaving.get_token());
  synth->Begin(0, *Choosing({16}));
  EXPECT_LT(LevelOfNote(*synth, 16), 0.00001);
}

TEST_F(OrchestraTest, WhatIsBeingReadWhenItIsAskedToStopIsNotPlayed) {
  Piece drums;
  drums.Notes = *ReadSong(Join({MidiHeader(0, 1, 96), MidiTrack({0, 0xc9, 0})}));
  // How loud all drums are together.
  const auto level = [&](Synth& synth) {
    synth.Begin(0, drums);
    synth.Send(0, {0, 0xc9, 0, 0});
    for (std::uint8_t drum = 35; drum < 82; ++drum) synth.Send(0, {0, 0x99, drum, 120});
    Block block{};
    synth.Render(block);
    return LevelOf({block.begin(), block.end()});
  };
  const auto untouched = Synth::Load("", kRate);
  untouched->Prepare(drums);
  const double whole = level(*untouched);
  EXPECT_GT(whole, 0.01);
  for (int moment = 0; moment <= 100; moment += 10) {
    const auto synth = Synth::Load("", kRate);
    std::stop_source leaving;
    std::thread hand([&] {
      std::this_thread::sleep_for(std::chrono::milliseconds(moment));
      leaving.request_stop();
    });
    synth->Prepare(drums, leaving.get_token());
    hand.join();
    const double heard = level(*synth);
    EXPECT_TRUE(heard < 0.0001 || heard == whole) << heard << " after " << moment << " ms";
  }
}

TEST_F(OrchestraTest, AnInstrumentThatPlaysGoesOnWhenOthersHaveTakenItsPlace) {
  const auto synth = Synth::Load("", kRate);
  synth->Prepare(*Choosing({16}));
  synth->Begin(0, *Choosing({16}));
  EXPECT_GT(LevelOfNote(*synth, 16), 0.001);
  std::vector<int> others;
  for (int program = 40; program < 70; ++program) others.push_back(program);
  synth->Prepare(*Choosing(others));
  EXPECT_GT(LevelOnTop(*synth, 16), 0.001) << "it is the channel's already";
  EXPECT_GT(LevelOnTop(*synth, 20), 0.001) << "for one that was not prepared another plays";
}

TEST_F(OrchestraTest, DrumsThatTheFontLacksAreItsFirst) {
  const Bytes events{0, 0xc9, 100, 0, 0x99, 38, 120};
  folder_.Write("Round3.mid", Join({MidiHeader(0, 1, 96), MidiTrack(events, 96)}));
  SoundEngine engine(ForCaller());
  Open(engine, "Round3.mid", "bgm3");
  engine.WaitUntilReady();
  engine.Send(PlayCommand("bgm3"));
  EXPECT_GT(LevelOf(Pull(engine, 0.2)), 0.001);
}

TEST_F(OrchestraTest, BanksThatTheFontLacksAreItsFirst) {
  const Bytes events{0,    0xb0, 0, 5, 0, 0xc0, 16, 0,    0x90, 60, 100,
                     0x20, 0xb0, 0, 6, 0, 0xc0, 16, 0x10, 0x90, 62, 100};
  folder_.Write("Round4.mid", Join({MidiHeader(0, 1, 96), MidiTrack(events, 96)}));
  SoundEngine engine(ForCaller());
  Open(engine, "Round4.mid", "bgm4");
  engine.WaitUntilReady();
  engine.Send(PlayCommand("bgm4"));
  EXPECT_GT(LevelOf(Pull(engine, 0.2)), 0.001);
}

TEST_F(OrchestraTest, APieceWaitsWhileItsInstrumentsAreRead) {
  const auto synth = Synth::Load("", kRate);
  auto piece = std::make_shared<Piece>();
  piece->Notes = *ReadSong(SimpleSong(1));
  piece->Ready = true;
  synth->Prepare(*piece);
  SongPlayer player(piece, 0, kRate);
  player.Start();
  const auto sounds = [&] {
    player.Step(synth.get());
    Block block{};
    for (int i = 0; i < 20; ++i) synth->Render(block);
    return LevelOf({block.begin(), block.end()}) > 0.0001;
  };
  {
    // Another thread reads, as far as the player can tell.
    std::promise<void> taken;
    std::promise<void> read;
    std::thread reader([&] {
      const auto turn = synth->Turn();
      taken.set_value();
      read.get_future().wait();
    });
    taken.get_future().wait();
    EXPECT_FALSE(sounds());
    read.set_value();
    reader.join();
  }
  EXPECT_TRUE(sounds());
}

}  // namespace
}  // namespace orvane
