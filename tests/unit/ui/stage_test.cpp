#include "src/ui/stage.h"

#include <gtest/gtest.h>

#include "src/ui/controls.h"
#include "src/ui/reach.h"
#include "src/ui/timer_queue.h"

namespace orvane {
namespace {

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

  Stage stage;
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
  stage.Ask({"text", "title", BoxButtons::Ok});
  EXPECT_FALSE(stage.TakesInput(first));
  stage.Answer(BoxAnswer::Ok);
  EXPECT_TRUE(stage.TakesInput(first));
  EXPECT_EQ(first.Log, "load enter ") << "a box that closes activates nothing";
}

TEST_F(StageTest, TheBoxInFrontIsAnsweredFirst) {
  std::string order;
  const auto note = [&order](const char* name) {
    return [&order, name](BoxAnswer answer) {
      order += std::string(name) + (answer == BoxAnswer::Ok ? "+" : "-");
    };
  };
  stage.Ask({"first", "", BoxButtons::OkCancel}, note("1"));
  stage.Ask({"second", "", BoxButtons::OkCancel}, note("2"));
  EXPECT_EQ(stage.Boxes().back().Shown.Text, "second");
  EXPECT_NE(stage.Boxes().front().Number, stage.Boxes().back().Number);
  stage.Answer(BoxAnswer::Cancel);
  stage.Answer(BoxAnswer::Ok);
  EXPECT_EQ(order, "2-1+");
}

TEST_F(StageTest, WhatFollowsABoxMayBringAnother) {
  stage.Ask({"first"}, [&](BoxAnswer) { stage.Ask({"second"}); });
  stage.Answer(BoxAnswer::Ok);
  ASSERT_EQ(stage.BoxCount(), 1);
  EXPECT_EQ(stage.Boxes().back().Shown.Text, "second");
}

TEST_F(StageTest, NothingFollowsTheBoxesOfAProgramThatHasEnded) {
  bool followed = false;
  stage.Ask({"text"}, [&](BoxAnswer) { followed = true; });
  stage.EndProgram(3);
  stage.EndProgram(4);
  EXPECT_FALSE(stage.BoxStands());
  stage.Answer(BoxAnswer::Ok);
  EXPECT_FALSE(followed);
  EXPECT_EQ(stage.ExitStatus(), 3) << "the first end counts";
  stage.Ask({"late"});
  EXPECT_FALSE(stage.BoxStands());
}

TEST_F(StageTest, TheLastBoxStandsAloneAndItsAnswerEndsTheProgram) {
  stage.Show(first);
  stage.Ask({"question"}, [&](BoxAnswer) { ADD_FAILURE() << "it is not answered"; });
  stage.EndWithBox({"error"}, 1);
  ASSERT_EQ(stage.BoxCount(), 1);
  EXPECT_FALSE(stage.HasEnded());
  EXPECT_FALSE(stage.TimeRuns());
  EXPECT_FALSE(stage.TakesInput(first));
  stage.Answer(BoxAnswer::Ok);
  EXPECT_TRUE(stage.HasEnded());
  EXPECT_EQ(stage.ExitStatus(), 1);
}

TEST_F(StageTest, AHoldStopsTimeAndInputUntilItIsOver) {
  stage.Show(first);
  stage.Hold(100);
  stage.Hold(100);
  EXPECT_EQ(stage.HeldFor(), 200);
  EXPECT_FALSE(stage.TakesInput(first));
  EXPECT_FALSE(stage.TimeRuns());
  stage.EndHold();
  EXPECT_TRUE(stage.TakesInput(first));
  EXPECT_TRUE(stage.TimeRuns());
}

TEST_F(StageTest, WhatIsAwaitedFollowsWhenItIsAskedFor) {
  stage.Show(first);
  bool woken = false;
  bool followed = false;
  stage.OnResume([&] { woken = true; });
  stage.Await();
  EXPECT_FALSE(stage.TakesInput(first));
  stage.RunDue();
  stage.Resume([&] { followed = true; });
  EXPECT_TRUE(woken);
  EXPECT_FALSE(followed) << "a handler may still be running";
  EXPECT_TRUE(stage.TimeRuns());
  stage.RunDue();
  EXPECT_TRUE(followed);
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

TEST_F(StageTest, WhatLiesBesideTheWindowCannotBeClicked) {
  stage.Show(first);
  first.List.At.Left = 199;
  EXPECT_TRUE(CanClick(first.List)) << "one column is left";
  first.List.At.Left = 200;
  EXPECT_FALSE(CanClick(first.List));
  first.List.At = {10, 99, 90, 90};
  EXPECT_TRUE(CanClick(first.List)) << "one row is left";
  first.List.At.Top = 100;
  EXPECT_FALSE(CanClick(first.List));
  first.List.At = {-90, -90, 90, 90};
  EXPECT_FALSE(CanClick(first.List));
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

TEST_F(TimerTest, EnablingARunningOneChangesNothing) {
  stage.Load(first);
  first.Clock.SetEnabled(true);
  Serve(8);
  first.Clock.SetEnabled(true);
  EXPECT_EQ(Serve(25), (std::vector<double>{10, 20}));
}

TEST_F(TimerTest, ANewIntervalBeginsAtOnce) {
  stage.Load(first);
  first.Clock.SetEnabled(true);
  Serve(8);
  first.Clock.SetInterval(20);
  EXPECT_EQ(Serve(50), (std::vector<double>{28, 48}));
}

TEST_F(TimerTest, OneThatIsOnByDesignBeginsWithItsScreen) {
  first.Clock.SetEnabled(true);
  stage.KeepDesigns();
  stage.Load(first);
  EXPECT_EQ(Serve(15), (std::vector<double>{10}));
  stage.Unload(first);
  Serve(100);
  stage.Load(first);
  EXPECT_EQ(Serve(115), (std::vector<double>{110}));
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

TEST_F(TimerTest, ATickThatAskedIsNotOverBeforeTheAnswer) {
  stage.Load(first);
  stage.Load(second);
  first.Clock.SetEnabled(true);
  second.Clock.SetEnabled(true);
  Serve(0);
  first.Clock.OnTick = [&] { stage.Ask({"text"}, [&](BoxAnswer) { stage.Ask({"and more"}); }); };
  stage.Tick(first.Clock);
  EXPECT_EQ(queue.FirstDue(50), &second.Clock) << "other timers go on";
  queue.Begin(second.Clock, 50);
  EXPECT_EQ(queue.FirstDue(50), nullptr);
  stage.Answer(BoxAnswer::Ok);
  EXPECT_EQ(queue.FirstDue(50), nullptr) << "what follows has asked again";
  stage.Answer(BoxAnswer::Ok);
  EXPECT_EQ(queue.FirstDue(50), &first.Clock);
}

TEST_F(TimerTest, ABoxThatNoTickAskedHoldsNoTimer) {
  stage.Load(first);
  first.Clock.SetEnabled(true);
  Serve(0);
  stage.Tick(first.Clock);
  stage.Ask({"asked by a click"});
  stage.Tick(first.Clock);
  EXPECT_EQ(queue.FirstDue(50), &first.Clock);
}

TEST_F(TimerTest, OfTwoThatAreDueAtOnceTheOneMadeFirstTicks) {
  stage.Load(first);
  stage.Load(second);
  second.Clock.SetEnabled(true);
  first.Clock.SetEnabled(true);
  Serve(0);
  EXPECT_EQ(queue.FirstDue(10), &first.Clock);
  queue.Begin(first.Clock, 10);
  EXPECT_EQ(queue.FirstDue(10), &second.Clock);
}

TEST_F(TimerTest, NothingTicksWhileTimeStands) {
  stage.Load(first);
  first.Clock.SetEnabled(true);
  Serve(0);
  stage.Hold(1);
  EXPECT_EQ(queue.FirstDue(50), nullptr);
  EXPECT_FALSE(queue.NextDue(50));
  stage.EndHold();
  stage.Await();
  EXPECT_FALSE(queue.NextDue(50));
  stage.Resume({});
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
