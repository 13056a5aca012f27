// What a record takes down of events, chance and files, and when it takes down nothing.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <deque>

#include "src/frontend/shared/chance.h"
#include "src/replay/replayer.h"
#include "src/replay/sums.h"
#include "tests/unit/replay/recorded_play.h"

namespace orvane {
namespace {

// A generator of which some draws are dictated, as scripts do.
class HalfDictated : public Chance {
 public:
  HalfDictated(Chance& luck, int every) : luck_(luck), every_(every) {}
  float Draw() override { return ++drawn_ % every_ == 0 ? 0.25F : luck_.Draw(); }
  void Reseed() override { luck_.Reseed(); }
  const SeededDraws* Source() const override { return luck_.Source(); }

 private:
  Chance& luck_;
  int every_;
  int drawn_ = 0;
};

class RecorderTest : public testing::Test {
 protected:
  // What the record says of the play when it is played again; empty where nothing differs.
  std::string Difference(const std::string& bytes) const {
    const FolderStorage built(ORVANE_GAME_FOLDER);
    Replayer replayer(bytes, built);
    try {
      while (replayer.Next() != nullptr) {
      }
      return {};
    } catch (const ReplayDiffers& difference) {
      return difference.what();
    }
  }
  std::string Difference() {
    play_.TheRecorder->Close(true);
    return Difference(play_.TheRecorder->Bytes());
  }
  // Starts with another chance than the play's own.
  void StartWith(Chance& luck) {
    play_.TheRecorder = std::make_unique<PlayRecorder>(Services{play_.Sound, luck, play_.Files});
    play_.TheProgram = std::make_unique<Program>(play_.TheRecorder->TheServices());
    play_.TheRecorder->Watch(*play_.TheProgram);
    play_.TheProgram->SetWatcher(play_.TheRecorder.get());
  }

  test::RecordedPlay play_;
};

TEST_F(RecorderTest, EveryKindOfEventIsTakenDown) {
  play_.Start();
  play_.Begin();
  Program& program = *play_.TheProgram;
  EXPECT_EQ(program.ClickItem(static_cast<MenuItem&>(play_.On("Main", "m33"))), "");
  EXPECT_EQ(program.Slide(static_cast<Slider&>(play_.On("Custom", "Slider1")), 7), "");
  EXPECT_EQ(program.Activate(play_.ScreenOf("Main")), "");
  EXPECT_EQ(program.Activate(play_.ScreenOf("Custom")), "");
  EXPECT_EQ(program.Click(play_.On("Custom", "Command1")), "");
  EXPECT_EQ(program.ClickAt(play_.On("Main", "Picture1"), 3.5, 2.25), "");
  EXPECT_EQ(program.Press(play_.ScreenOf("Main")), "");
  EXPECT_EQ(program.Click(play_.On("Main", "m21")), "");
  EXPECT_EQ(program.SelectTab(static_cast<TabStrip&>(play_.On("Wepon", "SSTab1")), 1), "");
  EXPECT_EQ(program.Close(play_.ScreenOf("Wepon")), "");
  program.Click(play_.On("Main", "m14"));
  program.Answer(BoxAnswer::Ok);
  EXPECT_TRUE(program.HasEnded());
  EXPECT_EQ(Difference(), "");
}

TEST_F(RecorderTest, ASaveThatIsKeptLaterIsTakenDownAsAnEvent) {
  for (const std::string failure : {"", "no room"}) {
    play_.Start();
    play_.Begin();
    play_.Files.AnswersLater = true;
    play_.Save();
    EXPECT_FALSE(play_.TheProgram->TheStage().TimeRuns());
    play_.Files.Failure = failure;
    play_.Files.Settle();
    EXPECT_EQ(play_.TheProgram->Error().has_value(), !failure.empty());
    EXPECT_EQ(Difference(), "");
    play_.Files.AnswersLater = false;
    play_.Files.Failure.clear();
  }
}

TEST_F(RecorderTest, ASaveThatWaitsAtTheEndOfTheRecordStillComesAbout) {
  play_.Start();
  play_.Begin();
  play_.Files.AnswersLater = true;
  play_.Save();
  EXPECT_FALSE(play_.TheProgram->TheStage().TimeRuns());
  play_.TheRecorder->Close(false);
  const std::string closed = play_.TheRecorder->Bytes();
  play_.Files.Settle();
  EXPECT_TRUE(play_.TheProgram->TheStage().TimeRuns());
  play_.TheRecorder->Close(false);
  EXPECT_EQ(play_.TheRecorder->Bytes(), closed);
}

TEST_F(RecorderTest, ASaveAfterTheEndOfTheRecordStillComesAbout) {
  for (const bool later : {false, true}) {
    play_.Start();
    play_.Begin();
    play_.Files.AnswersLater = later;
    play_.TheRecorder->Close(false);
    const std::string closed = play_.TheRecorder->Bytes();
    play_.Walk(Direction::Right, 5);
    play_.Save();
    if (later) play_.Files.Settle();
    EXPECT_TRUE(play_.TheProgram->TheStage().TimeRuns());
    play_.TheRecorder->Close(false);
    EXPECT_EQ(play_.TheRecorder->Bytes(), closed);
    play_.Files.AnswersLater = false;
  }
}

TEST_F(RecorderTest, AListOfFilesIsTakenDownAgainOnlyWhenItHasChanged) {
  play_.Start();
  play_.Begin();
  const auto look = [this] {
    const size_t before = play_.TheRecorder->Bytes().size();
    play_.TheProgram->Click(play_.On("Main", "m12"));
    play_.TheProgram->Close(play_.ScreenOf("Save"));
    return play_.TheRecorder->Bytes().size() - before;
  };
  look();
  const size_t same = look();
  EXPECT_EQ(look(), same);
  play_.Files.Files["Save07.sav"] = "";
  EXPECT_GT(look(), same);
  EXPECT_EQ(look(), same);
  EXPECT_EQ(Difference(), "");
}

TEST_F(RecorderTest, AFileIsTakenDownAgainOnlyWhenItHasChanged) {
  play_.Start();
  play_.TheProgram->Click(play_.On("Main", "m11"));
  const auto look = [this](int row) {
    const size_t before = play_.TheRecorder->Bytes().size();
    play_.TheProgram->Choose(play_.On("Load", "File1"), row);
    return play_.TheRecorder->Bytes().size() - before;
  };
  look(0);
  const size_t same = look(0);
  EXPECT_LT(same, 100u);
  std::string& save = play_.Files.Files["Save01.sav"];
  save[4] = static_cast<char>(save[4] ^ 1);
  EXPECT_GT(look(0), save.size()) << "another sum";
  EXPECT_EQ(look(0), same);
  save += "and more";
  EXPECT_GT(look(0), save.size()) << "another length";
  EXPECT_EQ(look(0), same);
  EXPECT_EQ(Difference(), "");
}

TEST_F(RecorderTest, ARecordThatGrowsBeyondAllMeasureIsNotWhole) {
  play_.Files.Files["Save01.sav"].resize(size_t{33} << 20);
  play_.Start();
  play_.TheProgram->Click(play_.On("Main", "m11"));
  EXPECT_TRUE(play_.TheRecorder->IsWhole());
  play_.TheProgram->Choose(play_.On("Load", "File1"), 0);
  play_.TheProgram->Close(play_.ScreenOf("Load"));
  EXPECT_FALSE(play_.TheRecorder->IsWhole());
  const size_t size = play_.TheRecorder->Bytes().size();
  play_.TheProgram->Click(play_.On("Main", "m14"));
  EXPECT_EQ(play_.TheRecorder->Bytes().size(), size);
}

TEST_F(RecorderTest, MeddlingAfterTheEndLeavesTheRecordWhole) {
  play_.Start();
  play_.TheRecorder->Close(false);
  play_.TheProgram->Enter({});
  EXPECT_TRUE(play_.TheRecorder->IsWhole());
}

TEST_F(RecorderTest, OfMoreTimersThanTheFormatCountsThereIsNoRecord) {
  class ManyTimers : public Screen {
   public:
    explicit ManyTimers(Stage& stage) : Screen(stage, "Many", "", 10, 10) {
      for (int i = 0; i <= static_cast<int>(kMostTimers); ++i) {
        Timers.push_back(std::make_unique<Timer>(*this, "Timer" + std::to_string(i), 10, 30));
      }
    }
    std::vector<std::unique_ptr<Timer>> Timers;
  };
  Stage stage;
  ManyTimers many(stage);
  PlayRecorder recorder(Services{play_.Sound, play_.Luck, play_.Files});
  for (int i = 0; i < static_cast<int>(kMostTimers); ++i) {
    recorder.Comes(
        {.What = PlayEvent::Kind::Tick, .On = many.Timers[static_cast<size_t>(i)].get()});
    EXPECT_TRUE(recorder.IsWhole());
  }
  recorder.Comes({.What = PlayEvent::Kind::Tick, .On = many.Timers.back().get()});
  EXPECT_FALSE(recorder.IsWhole());
}

TEST_F(RecorderTest, DrawsThatAreDictatedInBetweenAreTakenDown) {
  for (const int every : {1, 2, 3, 5}) {
    test::SteadyClockChance steady;
    PlayersChance fixed(7);
    for (Chance* source : {static_cast<Chance*>(&steady), static_cast<Chance*>(&fixed)}) {
      HalfDictated luck(*source, every);
      StartWith(luck);
      play_.Begin();
      play_.Walk(Direction::Right, 20);
      play_.Walk(Direction::Left, 20);
      EXPECT_EQ(Difference(), "") << "every " << every;
      play_.TheProgram.reset();
    }
  }
}

TEST_F(RecorderTest, AGeneratorThatWasDrawnFromBeforeGoesOnWhereItStood) {
  PlayersChance luck(7);
  for (int i = 0; i < 5; ++i) luck.Draw();
  StartWith(luck);
  play_.Begin();
  play_.Walk(Direction::Right, 20);
  EXPECT_EQ(Difference(), "");
  play_.TheProgram.reset();
}

TEST_F(RecorderTest, LongDelaysBetweenTwoSeedsAreTakenDownInFull) {
  constexpr uint32_t more_than_the_short_form_holds = 1000;
  test::SteadyClockChance luck(more_than_the_short_form_holds);
  StartWith(luck);
  play_.Begin();
  play_.Walk(Direction::Right, 20);
  EXPECT_EQ(Difference(), "");
  play_.TheProgram.reset();
}

TEST_F(RecorderTest, SixteenTicksAreOneByte) {
  Stage stage;
  class Clock : public Screen {
   public:
    explicit Clock(Stage& stage) : Screen(stage, "Clock", "", 10, 10) {}
    Timer Ticks{*this, "Timer1", 10, 30};
  };
  Clock clock(stage);
  PlayRecorder recorder(Services{play_.Sound, play_.Luck, play_.Files});
  const PlayEvent tick{.What = PlayEvent::Kind::Tick, .On = &clock.Ticks};
  recorder.Comes(tick);
  const size_t first = recorder.Bytes().size();
  for (int i = 1; i < 16; ++i) recorder.Comes(tick);
  EXPECT_EQ(recorder.Bytes().size(), first);
  for (int i = 0; i < 16; ++i) recorder.Comes(tick);
  EXPECT_EQ(recorder.Bytes().size(), first + 1);
}

// Draws that come from the generator in between, where none is dictated.
class Dictated : public PlayersChance {
 public:
  Dictated() : PlayersChance(7) {}
  float Draw() override {
    if (Next.empty()) return PlayersChance::Draw();
    const std::optional<float> draw = Next.front();
    Next.pop_front();
    return draw ? *draw : PlayersChance::Draw();
  }

  std::deque<std::optional<float>> Next;
};

TEST_F(RecorderTest, ABattleComesOutTheSameWithDrawsOfBothKindsInOneEvent) {
  Dictated luck;
  StartWith(luck);
  play_.Begin();
  // The roll that leads into a battle, the generator's kind, a dictated count.
  luck.Next = {100.5F / 150, std::nullopt, 0.99F};
  play_.Walk(Direction::Right, 1);
  ASSERT_TRUE(play_.ScreenOf("Battle").IsVisible());
  EXPECT_EQ(play_.TheProgram->Click(play_.On("Battle", "Command1")), "");
  EXPECT_EQ(play_.TheProgram->Choose(play_.On("Battle", "List2"), 1), "");
  for (int tick = 0; tick < 12; ++tick) {
    luck.Next = {std::nullopt, 0.5F};
    play_.TheProgram->Tick(play_.TimerOf("Battle", "Timer1"));
  }
  EXPECT_EQ(Difference(), "");
  play_.TheProgram.reset();
}

TEST_F(RecorderTest, SeedsAndDrawsThatNobodySawAreMadeGoodAtTheNextDraw) {
  for (const int way : {0, 1, 2}) {
    test::SteadyClockChance luck;
    StartWith(luck);
    play_.Begin();
    play_.Walk(Direction::Right, 3);
    if (way > 0) luck.Reseed();
    if (way > 1) luck.Reseed();
    luck.Draw();
    play_.Walk(Direction::Left, 3);
    luck.Reseed();
    luck.Reseed();
    play_.Walk(Direction::Right, 3);
    EXPECT_EQ(Difference(), "") << way;
    play_.TheProgram.reset();
  }
}

TEST_F(RecorderTest, WhatStandsModalAtTheEndIsPartOfTheSum) {
  play_.Start();
  const uint64_t before = SumOfState(*play_.TheProgram);
  play_.TheProgram->Click(play_.On("Main", "Command1"));
  ASSERT_TRUE(play_.ScreenOf("InputName").IsModal());
  EXPECT_NE(SumOfState(*play_.TheProgram), before);
  EXPECT_EQ(Difference(), "");
}

TEST_F(RecorderTest, AStartThatFailsIsARecordToo) {
  play_.Files.Files.erase("Item.dat");
  play_.Start();
  EXPECT_EQ(play_.TheProgram->TheStage().Active(), nullptr);
  EXPECT_TRUE(play_.TheProgram->Error().has_value());
  EXPECT_EQ(Difference(), "");
}

TEST_F(RecorderTest, AGeneratorThatIsDrawnFromAsItIsSeededComesOutTheSame) {
  class Eager : public Chance {
   public:
    float Draw() override { return luck_.Draw(); }
    void Reseed() override {
      luck_.Reseed();
      luck_.Draw();
    }
    const SeededDraws* Source() const override { return luck_.Source(); }

   private:
    test::SteadyClockChance luck_;
  };
  Eager luck;
  StartWith(luck);
  play_.Begin();
  play_.Walk(Direction::Right, 20);
  EXPECT_EQ(Difference(), "");
  play_.TheProgram.reset();
}

}  // namespace
}  // namespace orvane
