// Boxes of the stage as windows, without a loop under a loop.
#include "src/frontend/windows/app/boxes.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace orvane {
namespace {

constexpr int kFirstButton = 100;
constexpr LPARAM kWasDown = 1 << 30;

class BoxesTest : public testing::Test {
 protected:
  void Ask(const std::string& text, BoxButtons buttons) {
    stage_.Ask({text, "Box", buttons}, [this, text](BoxAnswer answer) {
      answers_.push_back(text + std::to_string(int(answer)));
    });
  }
  void Follow() {
    boxes_.Follow(stage_, nullptr, [this] { ++enabled_; });
  }
  static void Press(HWND box, int button) {
    SendMessageW(GetDlgItem(box, kFirstButton + button), BM_CLICK, 0, 0);
  }
  bool Key(WPARAM key, LPARAM flags) const {
    MSG message{};
    message.hwnd = boxes_.Front()->Handle();
    message.message = WM_KEYDOWN;
    message.wParam = key;
    message.lParam = flags;
    return boxes_.Front()->TakeKey(message);
  }
  static std::string Said(const char* text, BoxAnswer answer) {
    return text + std::to_string(int(answer));
  }

  Stage stage_;
  std::vector<std::string> answers_;
  int enabled_ = 0;
  Translator texts_;
  MessageBoxes boxes_{texts_, [this](BoxAnswer answer) {
                        stage_.Answer(answer);
                        Follow();
                      }};
};

TEST_F(BoxesTest, TheOneInFrontIsAnsweredFirst) {
  Ask("one", BoxButtons::OkCancel);
  Follow();
  const HWND first = boxes_.Front()->Handle();
  EXPECT_TRUE(IsWindowVisible(first));
  Ask("two", BoxButtons::YesNo);
  Follow();
  const HWND second = boxes_.Front()->Handle();
  ASSERT_NE(first, second);
  EXPECT_FALSE(IsWindowEnabled(first));
  EXPECT_TRUE(IsWindowEnabled(second));
  EXPECT_EQ(GetWindow(second, GW_OWNER), first);
  Press(second, 1);
  EXPECT_FALSE(IsWindow(second));
  EXPECT_TRUE(IsWindowEnabled(first));
  Press(first, 0);
  const std::vector<std::string> wanted = {Said("two", BoxAnswer::No), Said("one", BoxAnswer::Ok)};
  EXPECT_EQ(answers_, wanted);
  EXPECT_EQ(boxes_.Front(), nullptr);
}

TEST_F(BoxesTest, AnEndTakesAllAway) {
  Ask("one", BoxButtons::Ok);
  Ask("two", BoxButtons::Ok);
  Follow();
  const HWND second = boxes_.Front()->Handle();
  stage_.EndProgram(0);
  Follow();
  EXPECT_EQ(boxes_.Front(), nullptr);
  EXPECT_FALSE(IsWindow(second));
  EXPECT_TRUE(answers_.empty());
}

TEST_F(BoxesTest, WhatLiesBehindTakesInputBeforeABoxGoes) {
  Ask("one", BoxButtons::Ok);
  Follow();
  const int before = enabled_;
  Follow();
  EXPECT_EQ(enabled_, before) << "nothing has changed";
  Press(boxes_.Front()->Handle(), 0);
  EXPECT_EQ(enabled_, before + 1);
}

TEST_F(BoxesTest, EscapeAndClosingSayNo) {
  Ask("one", BoxButtons::OkCancel);
  Follow();
  EXPECT_TRUE(Key(VK_ESCAPE, 0));
  Ask("two", BoxButtons::YesNo);
  Follow();
  SendMessageW(boxes_.Front()->Handle(), WM_CLOSE, 0, 0);
  const std::vector<std::string> wanted = {Said("one", BoxAnswer::Cancel),
                                           Said("two", BoxAnswer::No)};
  EXPECT_EQ(answers_, wanted);
}

TEST_F(BoxesTest, AKeyHeldFromBeforeDoesNotAnswer) {
  Ask("one", BoxButtons::OkCancel);
  Follow();
  constexpr WPARAM keys[] = {VK_RETURN, VK_ESCAPE, VK_SPACE};
  for (const WPARAM key : keys) EXPECT_TRUE(Key(key, kWasDown));
  EXPECT_TRUE(answers_.empty());
}

}  // namespace
}  // namespace orvane
