// The game played by the keyboard alone: menus, every kind of control, a walk, a battle to its
// victory. What came of it is read from the files that the game saves.
#include <gtest/gtest.h>

#include <QMessageBox>

#include "tests/windows/game_folder.h"
#include "tests/windows/journey.h"

namespace orvane::test {
namespace {

constexpr auto kUp = Qt::Key_Up;
constexpr auto kDown = Qt::Key_Down;
constexpr auto kLeft = Qt::Key_Left;
constexpr auto kRight = Qt::Key_Right;
constexpr auto kEnter = Qt::Key_Return;
constexpr auto kTab = Qt::Key_Tab;
constexpr auto kHome = Qt::Key_Home;
constexpr auto kEnd = Qt::Key_End;

constexpr int kBattlePeriod = 12;  // ms, as the slider is left

class Keyboard : public testing::Test {
 protected:
  explicit Keyboard(uint32_t seed = Opening().Seed) : session_(InFolder(seed)) {}

  Opening InFolder(uint32_t seed) const {
    Opening opening;
    opening.Folder = folder_.Path();
    opening.Seed = seed;
    return opening;
  }

  static void Keys(std::initializer_list<Qt::Key> keys) { Session::PressAll(keys); }
  static void Back(int times) {
    for (int i = 0; i < times; ++i) Session::Press(Qt::Key_Backtab, Qt::ShiftModifier);
  }

  // The menu-th menu that is on, its item-th item, both from 1, and the window that comes.
  void Choose(int menu, int item, const std::string& screen) {
    session_.Opens("Main");
    Session::Press(Qt::Key_F10);
    for (int i = 1; i < menu; ++i) Session::Press(kRight);
    for (int i = 1; i < item; ++i) Session::Press(kDown);
    Session::Press(kEnter);
    session_.Opens(screen);
  }

  void Load();
  void Wear();
  void UseThings();
  void LookUp();
  void ChangeSettings();
  void Save();
  // From the commands' lower left corner, where these keys lead from any of them.
  void Command(std::initializer_list<Qt::Key> keys, const std::string& command,
               const std::string& list);
  int Saved(size_t offset) const { return folder_.Number("Save03.sav", offset); }
  int Began(size_t offset) const { return folder_.Number("Save01.sav", offset); }

  GameFolder folder_;
  Session session_;
};

// By its seed no battle comes on the way, also where a busy machine lets the party run on for a
// while.
class KeyboardInPeace : public Keyboard {
 protected:
  KeyboardInPeace() : Keyboard(10) {}
};

// The highlight alone chooses nothing: without Enter no file is chosen.
void Keyboard::Load() {
  Choose(1, 1, "Load");
  Keys({kEnd, kUp, kDown, kTab, kEnter});
  Session::Answer("警告", kEnter);
  Back(1);
  Keys({kHome, kEnter, kTab, kEnter});
  session_.Closes("Load");
  session_.Opens("Main");
  ASSERT_TRUE(session_.MenuIsOn("Main.m2")) << "the field";
  Session::Until("the party at rest", [&] { return Rests(session_); });
}

// His things go to him, by the list and the button beside it; hers to her on the other tab.
void Keyboard::Wear() {
  Choose(2, 1, "Wepon");
  Keys({kDown, kDown, kEnter, kTab, kTab, kEnter});
  Back(2);
  Keys({kDown, kDown, kEnter, kTab, kTab, kEnter});
  Session::Press(kTab, Qt::ControlModifier);
  Back(1);
  Keys({kUp, kEnter, kTab, kTab, kEnter});
  Back(2);
  Keys(
      {kEnd, Qt::Key_PageUp, kHome, kDown, kDown, kDown, kDown, kEnter, kTab, kTab, Qt::Key_Space});
  Keys({kTab, kTab, kEnter});
  session_.Closes("Wepon");
}

void Keyboard::UseThings() {
  Choose(2, 2, "Item");
  Keys({kDown, kEnter, kTab, kEnter});
  Session::Answer("アイテム削除", kEnter);
  Keys({kTab, kEnter});
  Back(1);
  Keys({kHome, kDown, kDown, kDown, kDown, kDown, kDown, kEnter, kTab, kEnter});
  session_.Opens("ItemUse");
  Keys({kEnter});
  session_.Closes("ItemUse");
}

void Keyboard::LookUp() {
  Choose(3, 1, "Chardata");
  Keys({kRight});
  EXPECT_EQ(session_.As<TabStrip>("Chardata.SSTab1").Tab(), 1);
  Keys({kLeft, kTab, Qt::Key_Space});
  session_.Closes("Chardata");
  Choose(3, 3, "Version");
  Keys({kEnter});
  session_.Closes("Version");
}

void Keyboard::ChangeSettings() {
  Choose(3, 2, "Custom");
  Session::Press(Qt::Key_A, Qt::ControlModifier);
  session_.Type("Gou");
  Keys({kTab, kTab, kHome, Qt::Key_PageUp, Qt::Key_PageUp, kRight});
  Keys({kTab, kEnter});
  session_.Closes("Custom");
}

void Keyboard::Save() {
  Choose(1, 1, "Save");
  Keys({kHome, kDown, kDown, kEnter, kTab});
  Keys({kEnter});
  Session::Answer("ゲームのセーブ", kEnter);
  session_.Closes("Save");
}

void Keyboard::Command(std::initializer_list<Qt::Key> keys, const std::string& command,
                       const std::string& list) {
  AwaitCommand(session_);
  Keys({kDown, kLeft});
  Keys(keys);
  ASSERT_EQ(session_.KeysAt("Battle"), command);
  Keys({kEnter});
  ASSERT_EQ(session_.KeysAt("Battle"), list);
}

TEST_F(KeyboardInPeace, WalksAndUsesEveryKindOfControl) {
  Load();
  Walk(session_, kLeft);
  Walk(session_, kRight, [&] { return session_.Facts().HeroX > Began(2); });
  Wear();
  UseThings();
  LookUp();
  ChangeSettings();
  Save();
  EXPECT_GT(Saved(2), Began(2)) << "the party has walked";
  HoldsWhatWasDone(folder_);
}

// A thing for him and a healing spell of hers, then a technique of his, then blows.
TEST_F(Keyboard, FightsWithEveryCommand) {
  Load();
  ChangeSettings();
  FindBattle(session_);
  EXPECT_EQ(session_.As<Timer>("Battle.Timer1").Interval(), kBattlePeriod)
      << "the speed of the slider";
  Command({kRight}, "Command4", "List3");
  Keys({kHome, kDown, kDown, kDown, kDown, kDown, kDown, kDown, kDown, kEnter});
  ASSERT_EQ(session_.KeysAt("Battle"), "List4") << "for whom";
  Keys({kDown, kDown, kEnter});
  Command({kRight}, "Command2", "List1");
  Keys({kDown, kDown, kDown, kDown, kEnter});
  Command({}, "Command3", "List1");
  Keys({kDown, kDown, kEnter});
  ASSERT_EQ(session_.KeysAt("Battle"), "List2") << "on whom";
  Keys({kDown, kDown, kEnter});
  AwaitCommand(session_);
  for (int turn = 0; turn < 60 && !IsWon(session_); ++turn) {
    Keys({kDown, kLeft});
    if (session_.KeysAt("Battle") == "Command3") Keys({kUp});
    ASSERT_EQ(session_.KeysAt("Battle"), "Command1");
    Keys({kEnter, kDown, kDown, kEnter});
    AwaitCommand(session_);
  }
  ASSERT_TRUE(IsWon(session_));
  LeaveVictory(session_);  // by a click alone
  Save();
  EXPECT_LT(Saved(94), Began(94)) << "his MP after a technique";
  EXPECT_LT(Saved(96), Began(96)) << "her MP after a spell";
  EXPECT_LT(Saved(450), Began(450)) << "the number of things after one was used";
  EXPECT_NE(folder_.Bytes("Save03.sav").substr(494, 4), folder_.Bytes("Save01.sav").substr(494, 4))
      << "his experience";
}

TEST_F(Keyboard, QuitsAtTheSecondThought) {
  Load();
  const auto quit = [&](Qt::Key answer) {
    Keys({Qt::Key_F10, kDown, kEnter});
    Session::Answer("ゲームの終了", answer);
  };
  quit(Qt::Key_Escape);
  session_.Opens("Main");
  EXPECT_FALSE(session_.Running().HasEnded());
  quit(kEnter);
  EXPECT_TRUE(session_.Running().HasEnded());
  EXPECT_EQ(session_.Running().ExitStatus(), 0);
}

}  // namespace
}  // namespace orvane::test
