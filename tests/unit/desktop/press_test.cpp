// The mouse on the ending's last card.
#include <gtest/gtest.h>

#include <QApplication>
#include <QMouseEvent>

#include "src/ending/ending.h"
#include "src/frontend/desktop/windows/windows.h"
#include "src/game/program.h"
#include "tests/unit/desktop/test_services.h"

namespace orvane {
namespace {

class PressTest : public testing::Test {
 protected:
  PressTest()
      : program_(quiet_.All()),
        events_(program_),
        windows_(program_.TheStage(), events_, Zoom({{1280, 1024}, {1280, 1024}}, 1, {})),
        ending_(static_cast<EndingScreen&>(*program_.TheStage().Find("Ending"))) {
    program_.Enter([this] { program_.TheStage().Show(ending_); });
  }

  void ScrollToTheEnd() {
    while (ending_.ScrollTimer.IsEnabled()) program_.Tick(ending_.ScrollTimer);
  }

  // Presses the mouse at a point of the screen, on whichever widget takes it there.
  void Press(const QPoint& at, Qt::MouseButton button) {
    windows_.Follow();
    ScreenWindow& window = *windows_.Of(&ending_);
    QWidget* ground = window.findChild<QWidget*>("Label1")->parentWidget();
    const QPoint in_window = ground->mapTo(&window, at);
    QWidget* taker = window.childAt(in_window);
    ASSERT_NE(taker, nullptr);
    const QPointF local = taker->mapFrom(&window, in_window);
    QMouseEvent event(QEvent::MouseButtonPress, local, taker->mapToGlobal(local), button, button,
                      Qt::NoModifier);
    QApplication::sendEvent(taker, &event);
  }

  TestServices quiet_;
  Program program_;
  ToProgram events_;
  Windows windows_;
  EndingScreen& ending_;
};

TEST_F(PressTest, OnTheCreditsChangesNothing) {
  Press({200, 120}, Qt::LeftButton);
  EXPECT_FALSE(program_.HasEnded());
}

TEST_F(PressTest, AnywhereOnTheLastCardEndsTheGame) {
  ScrollToTheEnd();
  ASSERT_TRUE(ending_.CardLines[0].Visible);
  Press({2, 2}, Qt::LeftButton);
  EXPECT_TRUE(program_.HasEnded());
}

TEST_F(PressTest, OnATextOfTheLastCardEndsTheGame) {
  ScrollToTheEnd();
  Press({200, 120}, Qt::LeftButton);
  EXPECT_TRUE(program_.HasEnded());
}

TEST_F(PressTest, WithAnyButtonEndsTheGame) {
  ScrollToTheEnd();
  Press({120, 270}, Qt::RightButton);
  EXPECT_TRUE(program_.HasEnded());
}

}  // namespace
}  // namespace orvane
