// What the stage does where there is nothing for it to do.
#include <gtest/gtest.h>

#include "src/ui/controls.h"
#include "src/ui/stage.h"

namespace orvane {
namespace {

class LoggedWindow : public Screen {
 public:
  explicit LoggedWindow(Stage& stage, const std::string& name)
      : Screen(stage, name, name, 200, 100) {}

  std::string Log;
  Timer Clock{*this, "Timer1", 10, 30};

 protected:
  void OnActivate(bool entered) override { Log += entered ? "enter " : "activate "; }
  void OnUnload() override { Log += "unload "; }
};

class StageRefusals : public testing::Test {
 protected:
  StageRefusals() { stage.KeepDesigns(); }

  Stage stage;
  LoggedWindow first{stage, "First"};
  LoggedWindow second{stage, "Second"};
};

TEST_F(StageRefusals, WhatIsHiddenIsNotHiddenAgainNorActivated) {
  stage.Show(first);
  stage.Hide(second);
  stage.Activate(second);
  EXPECT_EQ(stage.Active(), &first);
  EXPECT_EQ(first.Log, "enter ");
  EXPECT_EQ(second.Log, "");
}

TEST_F(StageRefusals, WhatIsNotLoadedHasNoUnloadStep) {
  stage.Unload(first);
  EXPECT_EQ(first.Log, "");
}

TEST_F(StageRefusals, AScreenThatIsLoadedAndHiddenGoesWithoutActivatingAnother) {
  stage.Show(first);
  stage.Load(second);
  stage.Unload(second);
  EXPECT_EQ(second.Log, "unload ");
  EXPECT_EQ(first.Log, "enter ");
  EXPECT_FALSE(second.IsLoaded());
}

TEST_F(StageRefusals, TheActiveScreenIsNotActivatedAgain) {
  stage.Show(first);
  stage.Show(second);
  stage.Activate(second);
  EXPECT_EQ(second.Log, "enter ");
  stage.Activate(first);
  EXPECT_EQ(first.Log, "enter activate ");
}

TEST_F(StageRefusals, ANoteGoesToTheBoxInFrontOrNowhere) {
  stage.AddNote("lost");
  stage.Ask({"behind"});
  stage.Ask({"front"});
  stage.AddNote("kept");
  EXPECT_EQ(stage.Boxes().front().Shown.Note, "");
  EXPECT_EQ(stage.Boxes().back().Shown.Note, "kept");
}

TEST_F(StageRefusals, ATickOfATimerWithoutAHandlerDoesNothing) {
  stage.Tick(first.Clock);
  EXPECT_FALSE(first.Clock.InTick);
}

TEST_F(StageRefusals, WhatHasComeDueStopsAtTheEnd) {
  int ran = 0;
  stage.Await();
  stage.Await();
  stage.Resume([&] {
    ++ran;
    stage.EndProgram(0);
  });
  stage.Resume([&] { ++ran; });
  stage.RunDue();
  EXPECT_EQ(ran, 1);
}

TEST_F(StageRefusals, OnlyTheFirstEndCounts) {
  stage.EndWithBox({"first"}, 1);
  stage.EndWithBox({"second"}, 2);
  ASSERT_EQ(stage.BoxCount(), 1);
  EXPECT_EQ(stage.Boxes()[0].Shown.Text, "first");
  stage.Answer(BoxAnswer::Ok);
  stage.EndWithBox({"third"}, 3);
  EXPECT_FALSE(stage.BoxStands());
  EXPECT_EQ(stage.ExitStatus(), 1);
}

}  // namespace
}  // namespace orvane
