// Where the keyboard is on every screen, and where it goes.
#include "src/frontend/desktop/input/focus.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QKeyEvent>
#include <QListWidget>
#include <QMenu>
#include <QTabBar>

#include "src/battle/battle_screen.h"
#include "src/frontend/desktop/input/keyboard.h"
#include "src/frontend/desktop/windows/windows.h"
#include "src/game/program.h"
#include "tests/unit/desktop/test_services.h"

namespace orvane {
namespace {

class FocusTest : public testing::Test {
 protected:
  FocusTest()
      : program_(quiet_.All()),
        events_(program_),
        windows_(program_.TheStage(), events_, Zoom({{1280, 1024}, {1280, 1024}}, 1, {})) {}

  ScreenWindow& Open(const std::string& name) {
    Screen& screen = *program_.TheStage().Find(name);
    program_.Enter([&] { program_.TheStage().Show(screen); });
    windows_.Follow();
    QApplication::processEvents();
    return *windows_.Of(&screen);
  }

  void Type(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
      QWidget* target = QApplication::focusWidget();
      ASSERT_NE(target, nullptr);
      QKeyEvent event(type, key, modifiers);
      QApplication::sendEvent(target, &event);
    }
    windows_.Follow();
  }

  // The name of the control that has the keyboard; a tab bar goes by that of its control.
  static std::string At(const ScreenWindow& window) {
    const QWidget* at = window.focusWidget();
    if (at == nullptr) return "nothing";
    if (qobject_cast<const QTabBar*>(at) != nullptr) at = at->parentWidget();
    return at->objectName().toStdString();
  }

  // All controls that Tab comes to, from the one that has the keyboard first.
  std::vector<std::string> Round(const ScreenWindow& window) {
    std::vector<std::string> names;
    for (std::string at = At(window); names.empty() || at != names.front(); at = At(window)) {
      names.push_back(at);
      Type(Qt::Key_Tab);
      if (names.size() > 20) break;
    }
    return names;
  }

  BattleScreen& Battle() { return static_cast<BattleScreen&>(*program_.TheStage().Find("Battle")); }

  TestServices quiet_;
  Program program_;
  ToProgram events_;
  Windows windows_;
};

using Names = std::vector<std::string>;

TEST_F(FocusTest, TabGoesThroughEachScreenAsItIsRead) {
  program_.TheState().GameStarted = kTrue;
  program_.TheState().OpeningDone = kTrue;
  EXPECT_EQ(Round(Open("InputName")), (Names{"Text1(0)", "Text1(1)", "OKButton", "CancelButton"}));
  EXPECT_EQ(Round(Open("Custom")), (Names{"Text1(0)", "Text1(1)", "Slider1", "Command1"}));
  EXPECT_EQ(Round(Open("Wepon")), (Names{"List1", "SSTab1", "Command5"}));
  EXPECT_EQ(Round(Open("Item")), (Names{"List1", "Command8"}));
  EXPECT_EQ(Round(Open("ItemUse")), (Names{"Command1(0)", "Command1(1)"}));
  EXPECT_EQ(Round(Open("Chardata")), (Names{"SSTab1", "Command1"}));
  EXPECT_EQ(Round(Open("Version")), (Names{"cmdOK"}));
  EXPECT_EQ(Round(Open("Load")), (Names{"File1", "OKButton"}));
  EXPECT_EQ(Round(Open("Save")), (Names{"File1", "OKButton"}));
  EXPECT_EQ(Round(Open("Battle")), (Names{"Command1", "Command3", "Command4", "SSTab1"}));
}

TEST_F(FocusTest, TheTitleStartsWithItsButton) {
  windows_.Follow();
  EXPECT_EQ(At(*windows_.Of(program_.TheStage().Find("Main"))), "Command1");
}

TEST_F(FocusTest, ArrowsGoFromButtonToButtonWhereTheyStand) {
  const ScreenWindow& window = Open("Battle");
  Type(Qt::Key_Down);
  EXPECT_EQ(At(window), "Command3");
  Type(Qt::Key_Right);
  EXPECT_EQ(At(window), "Command4");
  Type(Qt::Key_Right);
  EXPECT_EQ(At(window), "SSTab1");
}

TEST_F(FocusTest, AListHasTheKeyboardAsSoonAsItIsThereAndGivesItBack) {
  const ScreenWindow& window = Open("Battle");
  Type(Qt::Key_Return);
  EXPECT_EQ(At(window), "List2");
  Type(Qt::Key_Down);
  EXPECT_EQ(Battle().Targets.ListIndex, -1) << "the highlight chooses nothing";
  EXPECT_TRUE(Battle().Targets.Visible);
  Type(Qt::Key_Return);  // the way back
  EXPECT_FALSE(Battle().Targets.Visible);
  EXPECT_EQ(At(window), "Command1");
}

TEST_F(FocusTest, EscapeIsTheWayBackOfAListAndTheCancelOfADialog) {
  Open("Battle");
  Type(Qt::Key_Return);
  EXPECT_TRUE(Battle().Targets.Visible);
  Type(Qt::Key_Escape);
  EXPECT_FALSE(Battle().Targets.Visible);
  const ScreenWindow& names = Open("InputName");
  EXPECT_EQ(At(names), "Text1(0)");
  Type(Qt::Key_Escape);
  EXPECT_FALSE(names.isVisible());
}

TEST_F(FocusTest, EnterInANameFieldIsOk) {
  const ScreenWindow& names = Open("InputName");
  EXPECT_EQ(At(names), "Text1(0)");
  Type(Qt::Key_Return);
  ASSERT_TRUE(program_.TheStage().BoxStands()) << "a name is missing";
  EXPECT_EQ(program_.TheStage().Boxes().back().Shown.Text, "名前を入力してください。");
}

TEST_F(FocusTest, ArrowsStayInAListAtItsEnds) {
  program_.TheState().GameStarted = kTrue;
  program_.TheState().OpeningDone = kTrue;
  const ScreenWindow& window = Open("Wepon");
  for (int i = 0; i < 3; ++i) Type(Qt::Key_Up);
  EXPECT_EQ(At(window), "List1") << "the tabs lie higher, but not on the list's way";
  for (int i = 0; i < 30; ++i) Type(Qt::Key_Down);
  ASSERT_EQ(At(window), "List1");
  const auto* list = static_cast<const QListWidget*>(window.focusWidget());
  EXPECT_EQ(list->currentRow(), list->count() - 1);
  Type(Qt::Key_Right);
  EXPECT_EQ(At(window), "Command5") << "off the list to what lies beside it";
}

TEST_F(FocusTest, NothingHasTheKeyboardDuringAnActionAndTheCommandHasItAfterwards) {
  const ScreenWindow& window = Open("Battle");
  Type(Qt::Key_Right);  // to the item list and back, so that it is not the first button
  Type(Qt::Key_Down);
  const std::string command = At(window);
  ASSERT_NE(command, "Command1");
  Battle().HeroTabs.SetTabEnabled(0, false);
  Battle().HeroTabs.SetTabEnabled(1, false);
  for (CommandButton* button :
       {&Battle().FightButton, &Battle().TechniqueButton, &Battle().ItemButton}) {
    button->Enabled = false;
  }
  windows_.Follow();
  EXPECT_EQ(At(window), "nothing");
  for (CommandButton* button :
       {&Battle().FightButton, &Battle().TechniqueButton, &Battle().ItemButton}) {
    button->Enabled = true;
  }
  windows_.Follow();
  EXPECT_EQ(At(window), command);
}

TEST_F(FocusTest, ControlAndTabTurnTheTabsAndTheKeyboardGoesWithThem) {
  program_.TheState().GameStarted = kTrue;
  program_.TheState().OpeningDone = kTrue;
  const ScreenWindow& window = Open("Wepon");
  auto& tabs = static_cast<TabStrip&>(*program_.TheStage().Find("Wepon")->Find("SSTab1"));
  Type(Qt::Key_Tab);
  Type(Qt::Key_Tab);
  ASSERT_EQ(At(window), "Command5");
  Type(Qt::Key_Tab, Qt::ControlModifier);
  EXPECT_EQ(tabs.Tab(), 1);
  EXPECT_EQ(At(window), "SSTab1") << "what had the keyboard is on a pane that has closed";
  Type(Qt::Key_Left);
  EXPECT_EQ(tabs.Tab(), 0);
  Type(Qt::Key_Backtab, Qt::ControlModifier);
  EXPECT_EQ(tabs.Tab(), 1) << "round and round";
}

TEST_F(FocusTest, TabsThatAreOffAreNotTurnedTo) {
  Open("Battle");
  Battle().HeroTabs.SetTabEnabled(1, false);
  windows_.Follow();
  Type(Qt::Key_Tab, Qt::ControlModifier);
  EXPECT_EQ(Battle().HeroTabs.Tab(), 0);
}

TEST_F(FocusTest, TheMenuKeyOpensTheFirstMenuThatIsOn) {
  windows_.Follow();
  QApplication::processEvents();
  Type(Qt::Key_F10);
  const QWidget* menu = QApplication::activePopupWidget();
  ASSERT_NE(menu, nullptr);
  EXPECT_EQ(menu->actions().front()->text(), "ロード");
  const auto* open = qobject_cast<const QMenu*>(menu);
  ASSERT_NE(open, nullptr);
  EXPECT_EQ(open->activeAction(), menu->actions().front()) << "ready for Enter";
  QApplication::activePopupWidget()->close();
}

TEST_F(FocusTest, AMenuThatClosesLeavesTheKeysToTheWalk) {
  program_.TheState().GameStarted = kTrue;
  program_.TheState().OpeningDone = kTrue;
  Screen& version = *program_.TheStage().Find("Version");
  Open("Version");
  program_.Enter([&] { program_.TheStage().Unload(version); });
  program_.TheStage().Find("Main")->Find("Command1")->Visible = false;  // as after the title
  const ScreenWindow& field = Open("Main");
  ASSERT_EQ(At(field), "nothing");
  field.Menu()->Open();
  ASSERT_NE(QApplication::activePopupWidget(), nullptr);
  const auto escape = [](QWidget* target) {
    ASSERT_NE(target, nullptr);
    QKeyEvent event(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    QApplication::sendEvent(target, &event);
  };
  escape(QApplication::activePopupWidget());
  EXPECT_TRUE(MenuBarHasKeys()) << "along the bar, with no menu open";
  escape(QApplication::focusWidget());
  for (int i = 0; i < 3; ++i) QApplication::processEvents();  // it is painted first
  EXPECT_FALSE(MenuBarHasKeys());
  EXPECT_EQ(At(field), "nothing");
}

}  // namespace
}  // namespace orvane
