// The choice of the language in windows.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QContextMenuEvent>
#include <QLabel>
#include <QLocale>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>

#include "tests/windows/game_folder.h"
#include "tests/windows/journey.h"

namespace orvane::test {
namespace {

class Languages : public testing::Test {
 protected:
  Opening InFolder() const {
    Opening opening;
    opening.Folder = folder_.Path();
    return opening;
  }

  // A right click on a screen, and the menu that comes.
  QMenu* Offer(const std::string& screen) {
    QWidget& window = session_.Window(screen);
    QContextMenuEvent event(QContextMenuEvent::Mouse, {10, 40}, window.mapToGlobal(QPoint(10, 40)));
    QApplication::sendEvent(&window, &event);
    Session::Settle();
    return qobject_cast<QMenu*>(QApplication::activePopupWidget());
  }

  void Choose(const std::string& screen, const QString& language) {
    QMenu* menu = Offer(screen);
    ASSERT_NE(menu, nullptr);
    for (QAction* action : menu->actions()) {
      if (action->text() == language) action->trigger();
    }
    menu->close();
    Session::Settle();
  }

  template <class Kind>
  QString TextOf(const std::string& control) {
    return dynamic_cast<Kind&>(session_.Widget(control)).text();
  }

  GameFolder folder_;
  Session session_{InFolder()};
};

TEST_F(Languages, AreOfferedByTheirOwnNames) {
  QMenu* menu = Offer("Main");
  ASSERT_NE(menu, nullptr);
  ASSERT_GE(menu->actions().size(), 2);
  EXPECT_EQ(menu->actions()[0]->text(), "日本語");
  EXPECT_TRUE(menu->actions()[0]->isChecked());
  EXPECT_EQ(menu->actions()[1]->text(), "English");
  EXPECT_FALSE(menu->actions()[1]->isChecked());
  menu->close();
}

TEST_F(Languages, ChangeAtOnceInTheMidstOfABattle) {
  LoadSave(session_, kBeforeDragonRow);
  MeetDragon(session_);
  EXPECT_EQ(TextOf<QAbstractButton>("Battle.Command1"), "戦う");
  session_.Click("Battle.Command1");
  session_.ChooseRow("Battle.List2", 1);
  ASSERT_FALSE(session_.CanBeUsed("Battle.Command1")) << "while the action runs";
  Choose("Battle", "English");
  EXPECT_EQ(TextOf<QAbstractButton>("Battle.Command1"), "Fight");
  EXPECT_EQ(session_.Window("Battle").windowTitle(), "BATTLE!");
  EXPECT_EQ(session_.Window("Main").windowTitle(), "Orvane");
  EXPECT_EQ(QLocale().language(), QLocale::English) << "as screen readers are told";
  EXPECT_EQ(session_.Widget("Battle.Picture1").accessibleName(), "Battle scene");
  EXPECT_EQ(session_.As<CommandButton>("Battle.Command1").Caption, "戦う") << "the game's own";
  AwaitCommand(session_);
  Choose("Battle", "日本語");
  EXPECT_EQ(TextOf<QAbstractButton>("Battle.Command1"), "戦う");
  EXPECT_EQ(session_.Widget("Battle.Picture1").accessibleName(), "戦闘の場面");
  EXPECT_EQ(QLocale().language(), QLocale::Japanese);
}

TEST_F(Languages, ChangeABoxThatStands) {
  session_.CloseWindow("Main");
  Session::Answer("ゲームの終了", [this](QMessageBox& box) {
    session_.TheDesktop().ShowLanguage("en");
    EXPECT_EQ(box.windowTitle(), "Quit Game");
    EXPECT_EQ(box.text(), "Do you want to quit?");
    EXPECT_EQ(box.buttons().size(), 2);
    EXPECT_EQ(box.escapeButton()->text(), "Cancel");
    EXPECT_EQ(box.defaultButton()->text(), "OK");
    Session::Press(Qt::Key_Escape);
  });
  EXPECT_FALSE(session_.Running().HasEnded());
}

TEST_F(Languages, AreToldWhenThePlayerChoosesOne) {
  std::string chosen;
  session_.TheDesktop().TellOfLanguage([&chosen](const std::string& code) { chosen = code; });
  Choose("Main", "English");
  EXPECT_EQ(chosen, "en");
  EXPECT_EQ(TextOf<QAbstractButton>("Main.Command1"), "New Game");
}

}  // namespace
}  // namespace orvane::test
