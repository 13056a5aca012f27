// What controls refuse, and what they do at the edges of their ranges.
#include "src/ui/controls.h"

#include <gtest/gtest.h>

#include "src/base/error.h"
#include "src/ui/reach.h"
#include "src/ui/stage.h"
#include "src/ui/timer_queue.h"

namespace orvane {
namespace {

class Desk : public Screen {
 public:
  explicit Desk(Stage& stage) : Screen(stage, "Desk", "Desk", 200, 100) {
    Labels.Add(0, *this, Place{0, 0, 10, 10});
    Labels.Add(4, *this, Place{0, 0, 10, 10});
  }

  ListBox List{*this, "List1", {0, 0, 50, 50}};
  TabStrip Tabs{*this, "Tabs", {0, 0, 50, 50}, {{"a", "b"}, {true, true}}};
  CommandButton Back{*this, "Back", {60, 0, 50, 20}, {"back"}};
  CommandButton OtherBack{*this, "OtherBack", {60, 40, 50, 20}, {"back"}};
  Timer Clock{*this, "Timer1", 10, 30};
  Timer OtherClock{*this, "Timer2", 10, 30};
  ControlArray<Label> Labels{"Label1"};
};

class ControlsTest : public testing::Test {
 protected:
  ControlsTest() {
    stage.KeepDesigns();
    stage.Show(desk);
  }

  Stage stage;
  Desk desk{stage};
};

TEST_F(ControlsTest, ARowIsReplacedAndTheOneBehindTheLastIsAdded) {
  desk.List.SetRow(0, "first");
  desk.List.SetRow(1, "second");
  desk.List.SetRow(0, "anew");
  EXPECT_EQ(desk.List.Rows, (std::vector<std::string>{"anew", "second"}));
  EXPECT_THROW(desk.List.SetRow(3, "far"), RunError);
  EXPECT_THROW(desk.List.SetRow(-1, "before"), RunError);
}

TEST_F(ControlsTest, AnArrayHasGapsAndRefusesThem) {
  EXPECT_EQ(desk.Labels[4].Name(), "Label1(4)");
  EXPECT_THROW(desk.Labels[2], RunError);
  try {
    desk.Labels[2].Caption = "none";
  } catch (const RunError& error) {
    EXPECT_EQ(error.Kind, ErrorKind::Subscript);
    EXPECT_EQ(error.Subject, "Label1(2)");
  }
}

TEST_F(ControlsTest, OpeningTheOpenTabRunsNothing) {
  int opened = 0;
  desk.Tabs.OnClick = [&opened] { ++opened; };
  desk.Tabs.SetTab(0);
  EXPECT_EQ(opened, 0);
  desk.Tabs.SetTab(1);
  EXPECT_EQ(opened, 1);
  EXPECT_THROW(desk.Tabs.SetTab(2), RunError);
}

TEST_F(ControlsTest, ATimerWithoutAnIntervalDoesNotTick) {
  desk.Clock.SetEnabled(true);
  EXPECT_TRUE(desk.Clock.Ticks());
  desk.Clock.SetInterval(-5);
  EXPECT_EQ(desk.Clock.Interval(), 0);
  EXPECT_FALSE(desk.Clock.Ticks());
  desk.Clock.SetInterval(5);
  stage.Unload(desk);
  desk.Clock.SetEnabled(true);
  EXPECT_FALSE(desk.Clock.Ticks()) << "its screen is not loaded";
}

TEST_F(ControlsTest, TheNextTickIsTheEarliestAndNotOfATimerWithinOne) {
  desk.Clock.SetEnabled(true);
  desk.OtherClock.SetEnabled(true);
  TimerQueue timers(stage, Pacing::AsAsked);
  EXPECT_EQ(timers.NextDue(0), 10.0);
  desk.Clock.SetInterval(20);
  EXPECT_EQ(timers.NextDue(0), 10.0);
  desk.OtherClock.InTick = true;
  EXPECT_EQ(timers.NextDue(0), 20.0);
  desk.Clock.InTick = true;
  EXPECT_EQ(timers.NextDue(0), std::nullopt);
}

TEST_F(ControlsTest, TheWayBackIsTheFirstButtonThatCanBeClicked) {
  EXPECT_EQ(WayBack(desk), nullptr);
  desk.BackButtons = {&desk.Back, &desk.OtherBack};
  EXPECT_EQ(WayBack(desk), &desk.Back);
  desk.Back.Enabled = false;
  EXPECT_EQ(WayBack(desk), &desk.OtherBack);
  desk.OtherBack.Visible = false;
  EXPECT_EQ(WayBack(desk), nullptr);
}

TEST_F(ControlsTest, AListIsAWayBackOnlyWithTheRowForIt) {
  desk.BackButtons = {&desk.Back};
  desk.Tabs.Visible = false;  // it lies before the list
  desk.List.BackRow = 0;
  EXPECT_EQ(WayBack(desk), &desk.Back) << "the list is empty";
  desk.List.AddItem("back");
  EXPECT_EQ(WayBack(desk), &desk.List);
  desk.List.BackRow = -1;
  EXPECT_EQ(WayBack(desk), &desk.Back);
}

TEST_F(ControlsTest, AControlOutsideItsScreenHasNoPointToBeClickedAt) {
  EXPECT_TRUE(FreePoint(desk.Back).has_value());
  for (const Place& place : {Place{200, 0, 50, 20}, Place{-50, 0, 50, 20}, Place{60, 100, 50, 20},
                             Place{60, -20, 50, 20}}) {
    desk.Back.At = place;
    EXPECT_EQ(FreePoint(desk.Back), std::nullopt) << place.Left << "," << place.Top;
    EXPECT_FALSE(CanClick(desk.Back));
  }
}

}  // namespace
}  // namespace orvane
