// The whole front end with its loop of messages, and what the system asks of it.
#include <gtest/gtest.h>

#include <array>
#include <string>
#include <string_view>

#include "src/core/save_file.h"
#include "tests/unit/windows/running_front.h"

// After the system's first header.
#include <imm.h>

namespace orvane {
namespace {

constexpr int kWidth = 496;
constexpr int kHeight = 303;

class FrontTest : public RunningFront {
 protected:
  void Begin() {
    RunningFront::Begin();
    auto& walk = static_cast<Timer&>(On("Main", "Timer1"));
    walk.OnTick = [this, tick = walk.OnTick] {
      ++ticks_;
      tick();
    };
  }
  static HWND Window() { return FindWindowW(L"Orvane", L"Orvane"); }
  // The first field of the dialog for the names; the one that was made last lies on top.
  static HWND Field() {
    HWND field = nullptr;
    EnumChildWindows(FindWindowW(L"Orvane", L"名前の入力"), &TakeField,
                     reinterpret_cast<LPARAM>(&field));
    return field;
  }
  static BOOL CALLBACK TakeField(HWND window, LPARAM field) {
    std::array<wchar_t, 16> kind{};
    GetClassNameW(window, kind.data(), static_cast<int>(kind.size()));
    if (std::wstring_view(kind.data()) == L"Edit") *reinterpret_cast<HWND*>(field) = window;
    return TRUE;
  }
  static std::wstring TextOf(HWND field) {
    std::array<wchar_t, 64> text{};
    GetWindowTextW(field, text.data(), static_cast<int>(text.size()));
    return text.data();
  }
  // What an input method asks of the system: to show these letters as those that are composed, and
  // to take them as they are.
  static void Compose(HWND field, std::wstring letters) {
    const HIMC context = ImmGetContext(field);
    const auto bytes = static_cast<DWORD>(letters.size() * sizeof(wchar_t));
    EXPECT_TRUE(ImmSetCompositionStringW(context, SCS_SETSTR, letters.data(), bytes, nullptr, 0));
    ImmReleaseContext(field, context);
  }
  static void EndComposing(HWND field) {
    const HIMC context = ImmGetContext(field);
    EXPECT_TRUE(ImmNotifyIME(context, NI_COMPOSITIONSTR, CPS_COMPLETE, 0));
    ImmReleaseContext(field, context);
  }
  static SIZE Inside() {
    RECT inside;
    GetClientRect(Window(), &inside);
    return {inside.right, inside.bottom};
  }

  int ticks_ = 0;
};

TEST_F(FrontTest, TheSessionMayEndUnderAQuestion) {
  Begin();
  After(200, [this] {
    front_.Send([this](Program& program) { program.Close(*program_.TheStage().Find("Main")); });
    EXPECT_TRUE(program_.TheStage().BoxStands());
    EXPECT_EQ(SendMessageW(Window(), WM_QUERYENDSESSION, 0, 0), TRUE);
    SendMessageW(Window(), WM_ENDSESSION, FALSE, 0);
    EXPECT_FALSE(program_.HasEnded()) << "another program has said no";
    SendMessageW(Window(), WM_ENDSESSION, TRUE, 0);
    EXPECT_TRUE(program_.HasEnded());
  });
  EXPECT_EQ(Run(), 0);
  EXPECT_FALSE(program_.TheStage().BoxStands());
}

TEST_F(FrontTest, WhatIsSavedAsTheSessionEndsIsWhole) {
  Begin();
  After(200, [this] {
    front_.Send([this](Program& program) {
      program.Click(On("Main", "m12"));
      program.Choose(On("Save", "File1"), 0);
      program.Click(On("Save", "OKButton"));
      program.Answer(BoxAnswer::Yes);
    });
    SendMessageW(Window(), WM_ENDSESSION, TRUE, 0);
  });
  Run();
  EXPECT_EQ(services_.Files.Files["Save01.sav"], PackRecord(program_.TheState()));
}

TEST_F(FrontTest, OtherDotsToTheInchLayTheWindowOutAnew) {
  After(200, [] {
    // With wider frames the inside would be smaller.
    SetWindowPos(Window(), nullptr, 0, 0, 300, 200, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_NE(Inside().cx, kWidth);
    RECT offered = {0, 0, 300, 200};
    SendMessageW(Window(), WM_DPICHANGED, MAKEWPARAM(192, 192), reinterpret_cast<LPARAM>(&offered));
  });
  After(600, [this] {
    EXPECT_EQ(Inside().cx, kWidth);
    EXPECT_EQ(Inside().cy, kHeight);
    front_.SessionEnds();
  });
  Run();
}

// The letters of an input method come as messages.
TEST_F(FrontTest, AnInputMethodWritesIntoAField) {
  After(200, [this] {
    AskNames();
    After(300, [this] {
      const HWND field = Field();
      ASSERT_NE(field, nullptr);
      SendMessageW(field, EM_SETSEL, 0, -1);
      for (const wchar_t letter : {L'龍', L'の'}) PostMessageW(field, WM_IME_CHAR, letter, 1);
    });
    After(800, [this] {
      EXPECT_EQ(static_cast<TextBox&>(On("InputName", "Text1(0)")).Text, "龍の");
      front_.SessionEnds();
    });
  });
  Run();
}

TEST_F(FrontTest, AnInputMethodComposesInAField) {
  auto& model = static_cast<TextBox&>(On("InputName", "Text1(0)"));
  After(200, [&] {
    AskNames();
    After(300, [&] {
      const HWND field = Field();
      ASSERT_NE(field, nullptr);
      SendMessageW(field, EM_SETSEL, 0, -1);
      Compose(field, L"りゅう");
      EXPECT_EQ(TextOf(field), L"りゅう");
      model.Text = "カイ";
      front_.Send([](Program& /*program*/) {});
      EXPECT_EQ(TextOf(field), L"りゅう") << "what is composed is not the game's yet";
      Compose(field, L"龍");
      EXPECT_EQ(TextOf(field), L"龍");
      EndComposing(field);
    });
    After(800, [&] {
      EXPECT_EQ(model.Text, "龍");
      EXPECT_EQ(TextOf(Field()), L"龍");
      model.Text = "カイ";
      front_.Send([](Program& /*program*/) {});
      EXPECT_EQ(TextOf(Field()), L"カイ") << "nothing is composed any more";
      front_.SessionEnds();
    });
  });
  Run();
}

TEST_F(FrontTest, TicksGoOnUnderABox) {
  Begin();
  int before = 0;
  After(200, [&] {
    front_.Send([](Program& program) {
      program.TheStage().Ask({"text", "title", BoxButtons::Ok}, [](BoxAnswer /*answer*/) {});
    });
    before = ticks_;
    After(1000, [&] {
      EXPECT_TRUE(program_.TheStage().BoxStands());
      EXPECT_GE(ticks_ - before, 15) << "of about 30";
      front_.SessionEnds();
    });
  });
  Run();
}

TEST_F(FrontTest, TicksGoOnWhileAWindowIsMoved) {
  Begin();
  int before = 0;
  bool moving = false;
  After(200, [&] {
    After(200, [&] {
      GUITHREADINFO info{};
      info.cbSize = sizeof info;
      GetGUIThreadInfo(GetCurrentThreadId(), &info);
      moving = (info.flags & GUI_INMOVESIZE) != 0;
      before = ticks_;
    });
    After(1200, [&] {
      EXPECT_TRUE(moving);
      EXPECT_GE(ticks_ - before, 15) << "of about 30";
      EXPECT_LE(ticks_ - before, 40) << "of about 30";
      PostMessageW(Window(), WM_KEYDOWN, VK_ESCAPE, 0);
    });
    After(1600, [this] { front_.SessionEnds(); });
    SendMessageW(Window(), WM_SYSCOMMAND, SC_MOVE, 0);
    moving = false;
  });
  Run();
}

}  // namespace
}  // namespace orvane
