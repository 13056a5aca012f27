// What screen readers are told of the texts on a picture.
#include "src/frontend/shared/spoken_text.h"

#include <gtest/gtest.h>

#include <string>

#include "src/frontend/shared/spoken_names.h"
#include "src/game/program.h"
#include "src/platform/quiet_services.h"
#include "src/ui/stage.h"

namespace orvane {
namespace {

class SpokenPage : public Screen {
 public:
  explicit SpokenPage(Stage& stage) : Screen(stage, "Page", "Page", 400, 300) {
    Tabs.Captions = {"one", "two"};
    Tabs.PanesEnabled = {true, true};
  }

  PictureBox Scene{*this, "Scene", {0, 0, 200, 200}};
  Label Words{Scene, "Words", {0, 0, 100, 20}, {"\u3000龍が いる \n"}};
  Label Shadow{Scene, "Shadow", {1, 1, 100, 20}, {"龍が いる"}};
  Label Arrow{Scene, "Arrow", {180, 180, 20, 20}, {"↓"}};
  Label Number{Scene, "Number", {0, 40, 100, 20}, {"１２"}};
  Label Beside{*this, "Beside", {0, 220, 40, 20}, {"HP ： "}};
  Label Value{*this, "Value", {50, 220, 40, 20}, {"35/40"}};
  Label Nearer{*this, "Nearer", {100, 220, 40, 20}, {"MP ："}};
  Label OtherValue{*this, "OtherValue", {150, 220, 40, 20}, {"7/9"}};
  Label Farther{*this, "Farther", {80, 220, 10, 20}, {"LV ："}};
  CommandButton Button{*this, "Button", {130, 220, 10, 20}, {"使う："}};
  TabStrip Tabs{*this, "Tabs", {0, 250, 200, 50}};
  Label OnFirst{PaneOf(Tabs, 0), "OnFirst", {10, 10, 40, 20}, {"攻撃："}};
  Label ValueOnFirst{PaneOf(Tabs, 0), "ValueOnFirst", {60, 10, 40, 20}, {"30"}};
  Label OnSecond{PaneOf(Tabs, 1), "OnSecond", {20, 10, 40, 20}, {"防御："}};
  Label ValueOnSecond{PaneOf(Tabs, 1), "ValueOnSecond", {60, 10, 40, 20}, {"20"}};
};

class SpokenTextTest : public testing::Test {
 protected:
  SpokenTextTest() {
    stage_.KeepDesigns();
    stage_.Show(page_);
  }

  Stage stage_;
  SpokenPage page_{stage_};
  Translator own_;
};

TEST_F(SpokenTextTest, IsALineForEachTextThatHasWordsAndIsNoShadow) {
  EXPECT_EQ(SpokenText(page_.Scene, own_), "龍が いる\n１２");
}

TEST_F(SpokenTextTest, LeavesOutWhatCannotBeSeen) {
  page_.Number.Visible = false;
  EXPECT_EQ(SpokenText(page_.Scene, own_), "龍が いる");
  page_.Scene.Visible = false;
  EXPECT_EQ(SpokenText(page_.Scene, own_), "");
}

TEST_F(SpokenTextTest, SignsAloneAreNoWords) {
  for (const char* signs : {"", "　", "↓", "・・・", "…", "「」", "！？", "＊", "- - -"}) {
    page_.Number.Caption = signs;
    EXPECT_EQ(SpokenText(page_.Scene, own_), "龍が いる") << signs;
  }
  for (const char* words : {"x", "7", "７", "ア", "ｱ", "ー", "龍", "é", "々"}) {
    page_.Number.Caption = words;
    EXPECT_EQ(SpokenText(page_.Scene, own_), std::string("龍が いる\n") + words) << words;
  }
}

TEST_F(SpokenTextTest, ANumberIsToldByTheCaptionBeforeIt) {
  EXPECT_EQ(CaptionBeside(page_.Value), "HP ：");
  EXPECT_EQ(CaptionBeside(page_.OtherValue), "MP ：");
  EXPECT_EQ(CaptionBeside(page_.Nearer), "") << "a caption needs none";
  EXPECT_EQ(CaptionBeside(page_.Words), "");
  EXPECT_EQ(CaptionBeside(page_.Button), "") << "a button has its own";
}

TEST_F(SpokenTextTest, OnAPaneTheCaptionsOfTheOtherDoNotCount) {
  EXPECT_EQ(CaptionBeside(page_.ValueOnFirst), "攻撃：");
  EXPECT_EQ(CaptionBeside(page_.ValueOnSecond), "防御：");
}

TEST_F(SpokenTextTest, OfAScreenIsWhatStandsOnItself) {
  EXPECT_EQ(SpokenText(page_, own_), "HP ：\n35/40\nMP ：\n7/9\nLV ：");
}

class SpokenScreens : public testing::Test {
 protected:
  Label& LabelOn(const char* screen, const char* name) {
    return static_cast<Label&>(*program_.TheStage().Find(screen)->Find(name));
  }

  QuietServices quiet_;
  Program program_{quiet_.All()};
  Translator own_;
};

TEST_F(SpokenScreens, TellWhoseANumberIs) {
  Screen& battle = *program_.TheStage().Find("Battle");
  PictureBox& scene = static_cast<PictureBox&>(*battle.Find("Picture1"));
  program_.TheStage().Show(battle);
  Label& damage = LabelOn("Battle", "Label15(0)");
  damage.Visible = true;
  damage.Caption = "120";
  EXPECT_EQ(SpokenText(scene, own_), "敵１：120");
  EXPECT_EQ(SpokenMeaning(damage), "敵１");
  EXPECT_EQ(SpokenMeaning(*battle.Find("List1")), "");
}

TEST_F(SpokenScreens, TellTheCreditsWhereTheyAreDrawn) {
  Screen& ending = *program_.TheStage().Find("Ending");
  EXPECT_EQ(SpokenText(ending, own_).substr(0, 5), "STAFF");
  Translator english;
  english.Choose("en");
  EXPECT_NE(SpokenText(ending, english), SpokenText(ending, own_));
  LabelOn("Ending", "Label2(0)").Visible = true;
  EXPECT_EQ(SpokenText(ending, own_), "Thank you for playing") << "the last card stands";
}

TEST(SpokenNames, BelongToControlsThatThereAre) {
  QuietServices quiet;
  Program program(quiet.All());
  int named = 0;
  for (const Screen* screen : program.TheStage().Screens()) {
    for (const Control* control : screen->Controls()) {
      if (!SpokenName(*control).empty()) ++named;
    }
  }
  EXPECT_EQ(named, 55);
}

}  // namespace
}  // namespace orvane
