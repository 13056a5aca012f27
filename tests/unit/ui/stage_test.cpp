#include "src/ui/stage.h"

#include <gtest/gtest.h>

#include "src/ui/controls.h"
#include "src/ui/reach.h"
#include "src/ui/timer_queue.h"

namespace orvane {
namespace {

class Silent : public SoundDevice, public Chance, public BoxKeeper, public Sleeper {
 public:
  std::string Send(const std::string&) override { return ""; }
  float Draw() override { return 0; }
  void Reseed() override {}
  BoxAnswer Show(const Box&) override {
    if (WhileItStands) WhileItStands();
    return BoxAnswer::Ok;
  }
  void ShowError(const Box&) override {}
  void Sleep(int) override {}

  Handler WhileItStands;
};

class Window : public Screen {
 public:
  Window(Stage& stage, const std::string& name) : Screen(stage, name, name, 200, 100) {}

  std::string Log;
  Frame Holder1{*this, "Frame1", {0, 0, 100, 100}};
  CommandButton Button{Holder1, "Command1", {10, 10, 20, 20}, {"OK"}};
  Label Text{Holder1, "Label1", {10, 40, 20, 20}, {"before"}};
  ListBox List{*this, "List1", {10, 10, 90, 90}};
  Timer Clock{*this, "Timer1", 10, 30};

 protected:
  void OnLoad() override { Log += "load "; }
  void OnActivate(bool entered) override { Log += entered ? "enter " : "activate "; }
  void OnUnload() override { Log += "unload "; }
};

class StageTest : public testing::Test {
 protected:
  StageTest() { stage.KeepDesigns(); }

  Silent silent;
  Services services{silent, silent, silent, silent};
  Stage stage{services};
  Window first{stage, "First"};
  Window second{stage, "Second"};
};

TEST_F(StageTest, ShowingLoadsAndActivatesAtOnce) {
  stage.Show(first);
  EXPECT_EQ(first.Log, "load enter ");
  EXPECT_EQ(stage.Active(), &first);
  stage.Show(first);
  EXPECT_EQ(first.Log, "load enter ") << "it is active already";
}

TEST_F(StageTest, WhenTheActiveScreenGoesTheOneBeforeItIsActive) {
  stage.Show(first);
  stage.Show(second);
  stage.Hide(second);
  EXPECT_EQ(stage.Active(), &first);
  EXPECT_EQ(first.Log, "load enter activate ");
  stage.Hide(first);
  EXPECT_EQ(stage.Active(), nullptr);
}

TEST_F(StageTest, AHiddenScreenThatIsNotActiveActivatesNothing) {
  stage.Show(first);
  stage.Show(second);
  stage.Hide(first);
  EXPECT_EQ(second.Log, "load enter ");
}

TEST_F(StageTest, HidingKeepsAndUnloadingResetsTheControls) {
  stage.Show(first);
  first.Text.Caption = "after";
  stage.Hide(first);
  stage.Show(first);
  EXPECT_EQ(first.Text.Caption, "after");
  stage.Unload(first);
  EXPECT_FALSE(first.IsLoaded());
  stage.Show(first);
  EXPECT_EQ(first.Text.Caption, "before");
}

TEST_F(StageTest, AModalScreenKeepsInputFromTheOthers) {
  stage.Show(first);
  stage.ShowModal(second);
  EXPECT_FALSE(stage.TakesInput(first));
  EXPECT_TRUE(stage.TakesInput(second));
  stage.Unload(second);
  EXPECT_TRUE(stage.TakesInput(first));
}

TEST_F(StageTest, ABoxKeepsInputFromAll) {
  stage.Show(first);
  bool reached = true;
  silent.WhileItStands = [&] { reached = stage.TakesInput(first); };
  stage.ShowBox("text", "title", BoxButtons::Ok);
  EXPECT_FALSE(reached);
  EXPECT_TRUE(stage.TakesInput(first));
  EXPECT_EQ(first.Log, "load enter ") << "a box that closes activates nothing";
}

TEST_F(StageTest, AProgramThatEndsUnderABoxLeavesItsHandlers) {
  silent.WhileItStands = [&] { stage.MarkEnded(0); };
  EXPECT_THROW(stage.ShowBox("text", "title", BoxButtons::Ok), ProgramEnded);
}

TEST_F(StageTest, OnlyWhatCanBeSeenAndIsEnabledCanBeUsed) {
  EXPECT_FALSE(CanUse(first.Button)) << "its screen is hidden";
  stage.Show(first);
  first.List.Visible = false;
  EXPECT_TRUE(CanClick(first.Button));
  first.Holder1.Enabled = false;
  EXPECT_FALSE(CanUse(first.Button)) << "what holds it is disabled";
  first.Holder1.Enabled = true;
  first.Holder1.Visible = false;
  EXPECT_FALSE(CanUse(first.Button)) << "what holds it is invisible";
}

TEST_F(StageTest, WhatIsCoveredWhollyCannotBeClicked) {
  stage.Show(first);
  EXPECT_TRUE(CanUse(first.Button));
  EXPECT_FALSE(CanClick(first.Button)) << "the list lies over it";
  first.List.At.Left = 11;
  EXPECT_TRUE(CanClick(first.Button)) << "one column is free";
  EXPECT_EQ(ControlAt(first, {15, 15}), &first.List);
  EXPECT_EQ(ControlAt(first, {10, 15}), &first.Button);
  EXPECT_EQ(ControlAt(first, {150, 50}), nullptr);
}

class TimerTest : public StageTest {
 protected:
  // Serves all ticks until `until` and returns when they came.
  std::vector<double> Serve(double until) {
    std::vector<double> ticks;
    while (true) {
      const auto due = queue.NextDue(now);
      if (!due || *due > until) break;
      now = std::max(now, *due);
      Timer* timer = queue.FirstDue(now);
      queue.Begin(*timer, now);
      ticks.push_back(now);
      if (timer->OnTick) timer->OnTick();
    }
    now = until;
    return ticks;
  }

  TimerQueue queue{stage, Pacing::AsAsked};
  double now = 0;
};

TEST_F(TimerTest, TicksEachIntervalWhileEnabledAndLoaded) {
  stage.Load(first);
  EXPECT_TRUE(Serve(50).empty());
  first.Clock.SetEnabled(true);
  EXPECT_EQ(Serve(85), (std::vector<double>{60, 70, 80}));
  stage.Unload(first);
  EXPECT_TRUE(Serve(200).empty());
}

TEST_F(TimerTest, EnablingRestartsTheInterval) {
  stage.Load(first);
  first.Clock.SetEnabled(true);
  Serve(8);
  first.Clock.SetEnabled(false);
  first.Clock.SetEnabled(true);
  EXPECT_EQ(Serve(20), (std::vector<double>{18}));
}

TEST_F(TimerTest, DisablingActsAtOnceFromWithinTheTick) {
  stage.Load(first);
  first.Clock.SetEnabled(true);
  first.Clock.OnTick = [&] { first.Clock.SetEnabled(false); };
  EXPECT_EQ(Serve(100).size(), 1u);
}

TEST_F(TimerTest, LateTicksDoNotPileUp) {
  stage.Load(first);
  first.Clock.SetEnabled(true);
  Serve(0);
  now = 100;
  EXPECT_EQ(Serve(115), (std::vector<double>{100, 110}));
}

TEST_F(TimerTest, AnIntervalOfNothingNeverTicks) {
  stage.Load(first);
  first.Clock.SetInterval(0);
  first.Clock.SetEnabled(true);
  EXPECT_TRUE(Serve(100).empty());
}

TEST_F(TimerTest, ATickWithinItselfIsPassedOver) {
  stage.Load(first);
  first.Clock.SetEnabled(true);
  Serve(0);
  first.Clock.InTick = true;
  EXPECT_EQ(queue.FirstDue(50), nullptr);
  first.Clock.InTick = false;
  EXPECT_EQ(queue.FirstDue(50), &first.Clock);
}

TEST_F(TimerTest, TheEarlierOfTwoComesFirst) {
  stage.Load(first);
  stage.Load(second);
  second.Clock.SetInterval(7);
  first.Clock.SetEnabled(true);
  second.Clock.SetEnabled(true);
  std::string order;
  first.Clock.OnTick = [&] { order += "1"; };
  second.Clock.OnTick = [&] { order += "2"; };
  Serve(22);
  EXPECT_EQ(order, "21212");
}

TEST_F(TimerTest, RealTimeKeepsThePace) {
  TimerQueue paced(stage, Pacing::RealTime);
  stage.Load(first);
  first.Clock.SetEnabled(true);
  EXPECT_EQ(paced.NextDue(0), 30);
}

TEST_F(StageTest, ATabRunsItsClickOnlyWhenAnotherOpens) {
  TabStrip tabs(first, "SSTab1", {0, 0, 10, 10}, {{"a", "b"}, {true, true}});
  int clicks = 0;
  tabs.OnClick = [&] { ++clicks; };
  tabs.SetTab(0);
  EXPECT_EQ(clicks, 0);
  tabs.SetTab(1);
  EXPECT_EQ(clicks, 1);
  EXPECT_THROW(tabs.SetTab(2), RunError);
}

}  // namespace
}  // namespace orvane
