// Where the keyboard goes among the controls of a screen.
#include "src/frontend/shared/focus_order.h"

#include <gtest/gtest.h>

#include <string>

#include "src/ui/stage.h"

namespace orvane {
namespace {

// A button, a list and a slider in this order; under them tabs with a button on each pane.
class Desk : public Screen {
 public:
  explicit Desk(Stage& stage) : Screen(stage, "Desk", "Desk", 400, 300) {
    Tabs.Captions = {"one", "two"};
    Tabs.PanesEnabled = {true, true};
  }

  Label Words{*this, "Words", {0, 0, 100, 20}, {"not for keys"}};
  CommandButton Button{*this, "Button", {0, 40, 60, 20}, {"Button"}};
  Slider Speed{*this, "Speed", {100, 40, 60, 20}};
  ListBox Things{*this, "Things", {200, 40, 60, 60}};
  TabStrip Tabs{*this, "Tabs", {0, 150, 300, 100}};
  CommandButton First{PaneOf(Tabs, 0), "First", {20, 40, 60, 20}, {"First"}};
  CommandButton Second{PaneOf(Tabs, 1), "Second", {20, 40, 60, 20}, {"Second"}};
};

class FocusOrderTest : public testing::Test {
 protected:
  Stage stage_;
  Desk desk_{stage_};
  FocusOrder order_{desk_};
};

TEST_F(FocusOrderTest, WhatIsFilledInComesBeforeTheButtons) {
  const std::vector<Control*> wanted = {&desk_.Things, &desk_.Speed, &desk_.Button,
                                        &desk_.Tabs,   &desk_.First, &desk_.Second};
  EXPECT_EQ(order_.Stops(), wanted);
}

TEST_F(FocusOrderTest, BeginsWithWhatAsksForAnAnswerOrElseWithTheFirst) {
  EXPECT_EQ(order_.Begin(), &desk_.Things);
  desk_.Things.Visible = false;
  EXPECT_EQ(order_.Begin(), &desk_.Speed);
  for (Control* stop : order_.Stops()) stop->Enabled = false;
  EXPECT_EQ(order_.Begin(), nullptr);
}

TEST_F(FocusOrderTest, TabGoesRoundThroughWhatCanBeUsed) {
  desk_.Speed.Enabled = false;
  EXPECT_EQ(order_.Next(&desk_.Things, 1), &desk_.Button);
  EXPECT_EQ(order_.Next(&desk_.Button, -1), &desk_.Things);
  EXPECT_EQ(order_.Next(&desk_.First, 1), &desk_.Things) << "the second pane is closed";
  EXPECT_EQ(order_.Next(nullptr, 1), &desk_.Things);
  EXPECT_EQ(order_.Next(nullptr, -1), &desk_.First);
  for (Control* stop : order_.Stops()) stop->Enabled = false;
  EXPECT_EQ(order_.Next(nullptr, 1), nullptr);
}

TEST_F(FocusOrderTest, StaysWhereItCan) {
  EXPECT_EQ(order_.Follow(&desk_.Button), &desk_.Button);
}

TEST_F(FocusOrderTest, GoesToAListThatHasComeAndBackWhenItHasGone) {
  desk_.Things.Visible = false;
  desk_.Button.Enabled = false;  // commands are off while the list asks
  desk_.Things.Visible = true;
  EXPECT_EQ(order_.Follow(&desk_.Button), &desk_.Things);
  desk_.Things.Visible = false;
  desk_.Button.Enabled = true;
  EXPECT_EQ(order_.Follow(&desk_.Things), &desk_.Button);
}

TEST_F(FocusOrderTest, TheLastThatLostTheKeyboardIsTheFirstToHaveItAgain) {
  desk_.Things.Visible = false;
  desk_.Speed.Enabled = false;
  EXPECT_EQ(order_.Follow(&desk_.Speed), &desk_.Button);
  desk_.Button.Enabled = false;
  EXPECT_EQ(order_.Follow(&desk_.Button), &desk_.Tabs);
  for (Control* stop : order_.Stops()) stop->Enabled = true;
  desk_.Tabs.Enabled = false;
  EXPECT_EQ(order_.Follow(&desk_.Tabs), &desk_.Button);
}

TEST_F(FocusOrderTest, GoesToTheTabsWhenItsPaneHasClosed) {
  desk_.Tabs.OpenTab = 1;
  EXPECT_EQ(order_.Follow(&desk_.First), &desk_.Tabs);
  desk_.Tabs.Enabled = false;
  EXPECT_EQ(order_.Follow(&desk_.First), &desk_.Things) << "the tabs are of no use";
}

TEST_F(FocusOrderTest, WhatGoesOnTheOpenPaneLeavesTheTabsAlone) {
  desk_.First.Enabled = false;
  EXPECT_EQ(order_.Follow(&desk_.First), &desk_.Things);
}

TEST_F(FocusOrderTest, BeginsAnewWhereNothingHadTheKeyboard) {
  EXPECT_EQ(order_.Follow(nullptr), &desk_.Things);
}

TEST_F(FocusOrderTest, TabsOfWhichNoneCanBeOpenedAreOfNoUse) {
  desk_.Tabs.PanesEnabled = {false, false};
  desk_.Things.Visible = false;
  EXPECT_NE(order_.Follow(&desk_.Tabs), &desk_.Tabs);
  EXPECT_FALSE(order_.NextTab(1).has_value());
}

TEST_F(FocusOrderTest, ArrowsLeadToWhatLiesNextAndCanBeUsed) {
  EXPECT_EQ(order_.Neighbour(desk_.Button, Direction::Right), &desk_.Speed);
  desk_.Speed.Enabled = false;
  EXPECT_EQ(order_.Neighbour(desk_.Button, Direction::Right), &desk_.Things);
  EXPECT_EQ(order_.Neighbour(desk_.Button, Direction::Down), &desk_.Tabs);
  EXPECT_EQ(order_.Neighbour(desk_.Tabs, Direction::Down), &desk_.First)
      << "the tabs end above the pane";
  EXPECT_EQ(order_.Neighbour(desk_.Button, Direction::Left), nullptr);
}

TEST_F(FocusOrderTest, TabsTurnRoundAndRoundPastThoseThatAreOff) {
  auto turn = order_.NextTab(1);
  ASSERT_TRUE(turn.has_value());
  EXPECT_EQ(turn->Tabs, &desk_.Tabs);
  EXPECT_EQ(turn->Tab, 1);
  desk_.Tabs.OpenTab = 1;
  EXPECT_EQ(order_.NextTab(1)->Tab, 0);
  EXPECT_EQ(order_.NextTab(-1)->Tab, 0);
  desk_.Tabs.PanesEnabled = {false, true};
  EXPECT_EQ(order_.NextTab(1)->Tab, 1) << "there is no other";
}

}  // namespace
}  // namespace orvane
