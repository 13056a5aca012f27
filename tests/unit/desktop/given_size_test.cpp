// Windows whose sizes the window manager chooses.
#include <gtest/gtest.h>

#include <QApplication>
#include <QElapsedTimer>

#include "src/frontend/desktop/windows/toolkit_scale.h"
#include "src/frontend/desktop/windows/windows.h"
#include "src/game/program.h"
#include "tests/unit/desktop/test_services.h"

namespace orvane {
namespace {

constexpr int kScreenWidth = 1366;
constexpr int kScreenHeight = 768;
constexpr int kSoon = 2000;  // ms

Zoom TheZoom() {
  const Extent screen = {kScreenWidth, kScreenHeight};
  return Zoom({screen, screen}, 1, {{496, 303}});
}

class Noted : public ToProgram {
 public:
  using ToProgram::ToProgram;
  void Resized(const Screen& screen) override { Last = &screen; }
  const Screen* Last = nullptr;
};

class GivenSizeTest : public testing::Test {
 protected:
  GivenSizeTest()
      : program_(quiet_.All()),
        events_(program_),
        windows_(program_.TheStage(), events_, zoom_),
        main_(*program_.TheStage().Find("Main")) {
    SetScale(1, zoom_.TheScreen());
    windows_.Follow();
    QApplication::processEvents();
  }
  ~GivenSizeTest() override { SetScale(1, zoom_.TheScreen()); }

  // The window manager gives the window a size; waits for the word of it.
  void Give(ScreenWindow& window, int width, int height) {
    events_.Last = nullptr;
    window.resize(width, height);
    QElapsedTimer clock;
    clock.start();
    while (events_.Last == nullptr && clock.elapsed() < kSoon) {
      QApplication::processEvents(QEventLoop::WaitForMoreEvents, 20);
    }
    if (events_.Last != nullptr) windows_.ShareGiven(*events_.Last);
  }

  ScreenWindow& Main() { return *windows_.Of(&main_); }

  TestServices quiet_;
  Program program_;
  Noted events_;
  Zoom zoom_ = TheZoom();
  Windows windows_;
  Screen& main_;
};

TEST_F(GivenSizeTest, AWindowOfItsOwnSizeHasBeenGivenNone) {
  EXPECT_FALSE(Main().Given().has_value());
  EXPECT_TRUE(windows_.Suit(zoom_));
}

TEST_F(GivenSizeTest, TheSceneBecomesAsLargeAsFits) {
  Give(Main(), 1300, 700);
  ASSERT_EQ(events_.Last, &main_);
  EXPECT_FALSE(windows_.Suit(zoom_));
  windows_.Rescale(zoom_);
  EXPECT_TRUE(windows_.Suit(zoom_));
  const double inside = Main().sizeHint().height();
  EXPECT_NEAR(Main().devicePixelRatio(), 700 / inside, 0.01);
  EXPECT_NEAR(Main().height() * Main().devicePixelRatio(), 700, 4);
  EXPECT_NEAR(Main().width() * Main().devicePixelRatio(), 1300, 4);
}

TEST_F(GivenSizeTest, WhatOneSceneHasBeenGivenTheNextOneBeginsWith) {
  Give(Main(), 1300, 700);
  const Screen& battle = *program_.TheStage().Find("Battle");
  ASSERT_TRUE(windows_.Of(&battle)->Given().has_value());
  EXPECT_EQ(windows_.Of(&battle)->Given()->Width, 1300);
  const Screen& dialog = *program_.TheStage().Find("Version");
  EXPECT_FALSE(windows_.Of(&dialog)->Given().has_value());
}

TEST_F(GivenSizeTest, AScaleThatThePlayerChoosesGivesTheWindowItsOwnSizeAgain) {
  Give(Main(), 1300, 700);
  windows_.Rescale(zoom_);
  windows_.ForgetGiven();
  EXPECT_FALSE(windows_.Suit(zoom_));
  windows_.Rescale(zoom_);
  EXPECT_DOUBLE_EQ(Main().devicePixelRatio(), 1);
  EXPECT_EQ(Main().size(), Main().sizeHint());
}

}  // namespace
}  // namespace orvane
