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

class Page : public Screen {
 public:
  explicit Page(Stage& stage) : Screen(stage, "Page", "Page", 400, 300) {}

  PictureBox Scene{*this, "Scene", {0, 0, 200, 200}};
  Label Words{Scene, "Words", {0, 0, 100, 20}, {"\u3000龍が いる \n"}};
  Label Shadow{Scene, "Shadow", {1, 1, 100, 20}, {"龍が いる"}};
  Label Arrow{Scene, "Arrow", {180, 180, 20, 20}, {"↓"}};
  Label Number{Scene, "Number", {0, 40, 100, 20}, {"１２"}};
  Label Beside{*this, "Beside", {0, 220, 40, 20}, {"HP ： "}};
  Label Value{*this, "Value", {50, 220, 40, 20}, {"35/40"}};
  Label Nearer{*this, "Nearer", {100, 220, 40, 20}, {"MP ："}};
  Label OtherValue{*this, "OtherValue", {150, 220, 40, 20}, {"7/9"}};
};

class SpokenTextTest : public testing::Test {
 protected:
  SpokenTextTest() {
    stage_.KeepDesigns();
    stage_.Show(page_);
  }

  Stage stage_;
  Page page_{stage_};
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
