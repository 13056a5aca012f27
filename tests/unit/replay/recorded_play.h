// A play over services that are not to be foreseen, recorded.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "src/game/program.h"
#include "src/platform/clock_seed.h"
#include "src/platform/folder_storage.h"
#include "src/platform/quiet_services.h"
#include "src/replay/play_recorder.h"

namespace orvane::test {

// Says of every piece that it plays, and now and then that it has ended.
class RestlessSound : public SoundDevice {
 public:
  std::string Send(const std::string& command) override {
    if (!command.starts_with("status")) return {};
    return ++asked_ % 7 == 0 ? "stopped" : "playing";
  }

 private:
  int asked_ = 0;
};

// Reseeded by a clock that goes on by so many ms from each seed to the next: as a player's chance
// is, but with the same play in every run. Of the plays that the tests walk none meets a fight.
class SteadyClockChance : public Chance {
 public:
  explicit SteadyClockChance(uint32_t step = 16) : step_(step) { Reseed(); }
  float Draw() override { return draws_.Draw(); }
  void Reseed() override { draws_.Seed(ClockSeed(kBegin, passed_ += step_, ++reseeds_)); }
  const SeededDraws* Source() const override { return &draws_; }

 private:
  static constexpr uint64_t kBegin = 1'700'000'000'000;

  SeededDraws draws_;
  uint32_t step_;
  uint32_t passed_ = 0;
  uint32_t reseeds_ = 0;
};

class RecordedPlay {
 public:
  RecordedPlay() {
    const FolderStorage built(ORVANE_GAME_FOLDER);
    for (const char* name : {"Item.dat", "Mapdata/map3-3.dat", "Mapdata/map2-3.dat",
                             "Mapdata/map4-3.dat", "Save01.sav", "Save02.sav"}) {
      Files.Files[name] = built.Read(name).value_or("");
    }
  }

  void Start() {
    TheRecorder = std::make_unique<PlayRecorder>(Services{Sound, Luck, Files});
    TheProgram = std::make_unique<Program>(TheRecorder->TheServices());
    TheRecorder->Watch(*TheProgram);
    TheProgram->SetWatcher(TheRecorder.get());
  }

  Screen& ScreenOf(const char* name) { return *TheProgram->TheStage().Find(name); }
  Control& On(const char* screen, const char* name) { return *ScreenOf(screen).Find(name); }
  Timer& TimerOf(const char* screen, const char* name) {
    return static_cast<Timer&>(On(screen, name));
  }

  // From the title to the field.
  void Begin() {
    EXPECT_EQ(TheProgram->Click(On("Main", "Command1")), "");
    TheProgram->EnterText(static_cast<TextBox&>(On("InputName", "Text1(0)")), "カイ");
    TheProgram->EnterText(static_cast<TextBox&>(On("InputName", "Text1(1)")), "リナ");
    TheProgram->Confirm(ScreenOf("InputName"));
    for (int line = 0; line < 20; ++line) TheProgram->Click(On("Main", "Picture1"));
    EXPECT_TRUE(TimerOf("Main", "Timer1").IsEnabled());
  }
  void Walk(Direction direction, int ticks) {
    TheProgram->KeyDown(direction);
    for (int i = 0; i < ticks; ++i) TheProgram->Tick(TimerOf("Main", "Timer1"));
    TheProgram->KeyUp(direction);
  }
  // Goes to the save screen and saves, with a click too many on the way.
  void Save() {
    EXPECT_EQ(TheProgram->Click(On("Main", "m12")), "");
    EXPECT_EQ(TheProgram->Choose(On("Save", "File1"), 0), "");
    EXPECT_EQ(TheProgram->Click(On("Save", "OKButton")), "");
    EXPECT_NE(TheProgram->Click(On("Save", "OKButton")), "") << "a box stands";
    TheProgram->Answer(BoxAnswer::Yes);
  }
  // A play of everything that there is to be recorded.
  void PlayAll() {
    Start();
    Begin();
    Walk(Direction::Right, 40);
    Walk(Direction::Down, 30);
    Files.AnswersLater = true;
    Save();
    TheProgram->KeyDown(Direction::Left);
    Files.Settle();
    Walk(Direction::Left, 60);
    TheProgram->Click(On("Main", "m33"));
    TheProgram->GoBack(ScreenOf("Custom"));
  }

  RestlessSound Sound;
  SteadyClockChance Luck;
  MemoryStorage Files;
  std::unique_ptr<PlayRecorder> TheRecorder;
  std::unique_ptr<Program> TheProgram;
};

}  // namespace orvane::test
