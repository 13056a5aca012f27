// Each screen opened, used and closed in windows of the process's scale; the effect is read from
// the files that the game saves.
#include <gtest/gtest.h>

#include <QMessageBox>

#include "tests/windows/game_folder.h"
#include "tests/windows/journey.h"
#include "tests/windows/kept_pictures.h"

namespace orvane::test {
namespace {

class Screens : public testing::Test {
 protected:
  Opening InFolder() const {
    Opening opening;
    opening.Folder = folder_.Path();
    return opening;
  }

  void Keep(const std::string& name, const std::string& screen) {
    LooksAsKept(session_.Window(screen), name);
  }
  // A box that is looked at and answered.
  void Answer(const QString& title, Qt::Key key, const std::string& name = {}) {
    Session::Answer(title, [key, name](QMessageBox& box) {
      if (!name.empty()) LooksAsKept(box, name);
      Session::Press(key);
    });
  }

  void WearThings();
  void UseThings();
  void ChangeSettings();
  void Save();

  GameFolder folder_;
  Session session_{InFolder()};
};

// His sword, her staff, his armour, hers: each goes to whom it suits.
void Screens::WearThings() {
  session_.ChooseItem("Main.m21");
  session_.Opens("Wepon");
  session_.ChooseRow("Wepon.List1", 1);
  session_.Click("Wepon.Command1");
  session_.ChooseRow("Wepon.List1", 3);
  session_.Click("Wepon.Command1");
  Keep("his-things", "Wepon");
  session_.OpenTab("Wepon.SSTab1", 1);
  session_.ChooseRow("Wepon.List1", 2);
  session_.Click("Wepon.Command3");
  session_.ChooseRow("Wepon.List1", 4);
  session_.Click("Wepon.Command3");
  Keep("her-things", "Wepon");
  session_.Click("Wepon.Command6");
  session_.Closes("Wepon");
}

// The coin goes, at the second thought; then the fruit goes to him. The coin was the last, and the
// list stands in the order of numbers then.
void Screens::UseThings() {
  session_.ChooseItem("Main.m22");
  session_.Opens("Item");
  session_.ChooseRow("Item.List1", 0);
  session_.Click("Item.Command2");
  Answer("アイテム削除", Qt::Key_Escape, "discard");
  session_.Click("Item.Command2");
  Answer("アイテム削除", Qt::Key_Return);
  session_.Click("Item.Command8");
  Keep("tidy", "Item");
  session_.ChooseRow("Item.List1", 6);
  session_.Click("Item.Command1");
  session_.Opens("ItemUse");
  EXPECT_FALSE(session_.Shows("Item"));
  Keep("use", "ItemUse");
  session_.Click("ItemUse.Command1(0)");
  session_.Closes("ItemUse");
  session_.Opens("Main");
}

void Screens::ChangeSettings() {
  session_.ChooseItem("Main.m33");
  session_.Opens("Custom");
  session_.Click("Custom.Text1(0)");
  Session::Press(Qt::Key_A, Qt::ControlModifier);
  session_.Type("Gou");
  session_.Click("Custom.Slider1");
  Session::Press(Qt::Key_Home);
  Keep("settings-changed", "Custom");
  session_.Click("Custom.Command1");
  session_.Closes("Custom");
}

void Screens::Save() {
  session_.ChooseItem("Main.m12");
  session_.Opens("Save");
  session_.Click("Save.OKButton");
  Answer("警告", Qt::Key_Return);
  session_.ChooseRow("Save.File1", kFirstFreeRow);
  Keep("save", "Save");
  session_.Click("Save.OKButton");
  Answer("ゲームのセーブ", Qt::Key_Escape, "sure");
  EXPECT_TRUE(session_.Shows("Save")) << "not without an answer";
  session_.Click("Save.OKButton");
  Answer("ゲームのセーブ", Qt::Key_Return);
  session_.Closes("Save");
}

TEST_F(Screens, NamesAreAskedFor) {
  Keep("title", "Main");
  session_.Click("Main.Command1");
  session_.Opens("InputName");
  session_.Type("Gou");
  Keep("names", "InputName");
  session_.CloseWindow("InputName");
  session_.Closes("InputName");
  session_.Opens("Main");
  Keep("title", "Main");
}

TEST_F(Screens, LoadingAsksForAFileAndShowsABrokenOne) {
  folder_.Write("Save09.sav", folder_.Bytes("Save01.sav").substr(0, 100));
  session_.ChooseItem("Main.m11");
  session_.Opens("Load");
  session_.Click("Load.OKButton");
  Answer("警告", Qt::Key_Return, "nothing-chosen");
  EXPECT_TRUE(session_.Shows("Load"));
  // The list shows four rows; the keys go to the last but one, which Enter then chooses.
  session_.ChooseRow("Load.File1", kTravellersRow);
  Keep("load", "Load");
  Session::PressAll({Qt::Key_End, Qt::Key_Up, Qt::Key_Return});
  EXPECT_EQ(session_.As<FileListBox>("Load.File1").FileName(), "Save09.sav");
  Keep("broken", "Load");
  Session::Press(Qt::Key_Home);
  session_.ChooseRow("Load.File1", kTravellersRow);
  session_.Click("Load.OKButton");
  session_.Closes("Load");
  session_.Opens("Main");
  EXPECT_TRUE(session_.MenuIsOn("Main.m2")) << "the field";
  Session::Until("the party at rest", [&] { return Rests(session_); });
  Keep("field", "Main");
}

TEST_F(Screens, HeroesAreShown) {
  LoadSave(session_, kTravellersRow);
  session_.ChooseItem("Main.m32");
  session_.Opens("Chardata");
  Keep("him", "Chardata");
  session_.OpenTab("Chardata.SSTab1", 1);
  Keep("her", "Chardata");
  session_.Click("Chardata.Command2");
  session_.Closes("Chardata");
}

TEST_F(Screens, VersionIsShown) {
  LoadSave(session_, kTravellersRow);
  session_.ChooseItem("Main.m35");
  session_.Opens("Version");
  Keep("version", "Version");
  session_.Click("Version.cmdOK");
  session_.Closes("Version");
}

TEST_F(Screens, WhatIsWornUsedAndChangedIsInTheSave) {
  LoadSave(session_, kTravellersRow);
  WearThings();
  UseThings();
  session_.ChooseItem("Main.m22");
  session_.Opens("Item");
  EXPECT_EQ(session_.As<ListBox>("Item.List1").List(6), "なし") << "the fruit is gone";
  session_.CloseWindow("Item");
  session_.Closes("Item");
  ChangeSettings();
  Save();
  EXPECT_EQ(folder_.Bytes("Save03.sav").size(), 540);
  HoldsWhatWasDone(folder_);
}

// Every kind of command against the dragon: he uses the fifth technique, which stops the time for a
// moment, and she a spell on it; then both use a thing.
TEST_F(Screens, EveryCommandOfABattleIsGiven) {
  LoadSave(session_, kBeforeDragonRow);
  Keep("before-dragon", "Main");
  MeetDragon(session_);
  Keep("dragon", "Battle");
  session_.Click("Battle.Command3");
  Keep("techniques", "Battle");
  session_.ChooseRow("Battle.List1", 5);
  Keep("targets", "Battle");
  session_.ChooseRow("Battle.List2", 1);
  EXPECT_FALSE(session_.CanBeUsed("Battle.Command1")) << "while the action runs";
  AwaitCommand(session_);
  session_.Click("Battle.Command2");
  Keep("spells", "Battle");
  session_.ChooseRow("Battle.List1", 4);
  AwaitCommand(session_);
  session_.Click("Battle.Command4");
  session_.ChooseRow("Battle.List3", 1);
  session_.ChooseRow("Battle.List4", 1);
  AwaitCommand(session_);
  WinByLastTechnique(session_);
  session_.Opens("Main");
}

TEST_F(Screens, TheStoryGoesOnToTheLastCard) {
  LoadSave(session_, kBeforeDragonRow);
  MeetDragon(session_);
  WinByLastTechnique(session_);
  HearScene(session_);
  Keep("last-stage", "Main");
  MeetDragon(session_);
  Keep("last-dragon", "Battle");
  Strike(session_);
  AwaitCommand(session_);
  Strike(session_);
  AwaitCommand(session_);
  WinByLastTechnique(session_);
  for (int line = 0; line < 60 && !session_.Shows("Ending"); ++line) {
    session_.ClickAt("Main.Picture1", {40, 150});
  }
  session_.Opens("Ending");
  const QImage begun = session_.Shown("Ending");
  Session::Until("rolling credits", [&] { return session_.Shown("Ending") != begun; });
  session_.Run("Ending.Timer1", [] { return false; });
  Keep("last-card", "Ending");
  session_.ClickSurface("Ending", {200, 100});
  EXPECT_TRUE(session_.Running().HasEnded());
  EXPECT_EQ(session_.Running().ExitStatus(), 0);
}

TEST_F(Screens, ClosingTheCreditsEndsTheGame) {
  session_.Send([](Program& program) {
    program.Enter([&] { program.TheStage().Show(*program.TheStage().Find("Ending")); });
  });
  session_.Opens("Ending");
  session_.CloseWindow("Ending");
  EXPECT_TRUE(session_.Running().HasEnded());
  EXPECT_EQ(session_.Running().ExitStatus(), 0);
}

}  // namespace
}  // namespace orvane::test
