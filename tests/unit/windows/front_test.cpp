// The whole front end with its loop of messages, and what the system asks of it.
#include "src/frontend/windows/app/front.h"

#include <gtest/gtest.h>

#include <array>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <utility>

#include "src/core/save_file.h"
#include "src/frontend/windows/system/windows_api.h"
#include "src/platform/folder_storage.h"
#include "src/platform/quiet_services.h"

// After the system's first header.
#include <imm.h>

namespace orvane {
namespace {

constexpr int kWidth = 496;
constexpr int kHeight = 303;
constexpr UINT kLongest = 10000;  // ms that a run may take

// What is done later, from whatever loop of messages runs then, by the system's timers.
std::map<UINT_PTR, std::function<void()>>& Planned() {
  static std::map<UINT_PTR, std::function<void()>> planned;
  return planned;
}

void CALLBACK DoPlanned(HWND /*window*/, UINT /*message*/, UINT_PTR timer, DWORD /*time*/) {
  KillTimer(nullptr, timer);
  const auto node = Planned().extract(timer);
  if (!node.empty()) node.mapped()();
}

void After(UINT milliseconds, std::function<void()> deed) {
  Planned()[SetTimer(nullptr, 0, milliseconds, &DoPlanned)] = std::move(deed);
}

class FrontTest : public testing::Test {
 protected:
  ~FrontTest() override {
    for (const auto& [timer, deed] : Planned()) KillTimer(nullptr, timer);
    Planned().clear();
  }

  Control& On(const char* screen, const char* name) {
    return *program_.TheStage().Find(screen)->Find(name);
  }
  // From the title to the field, where the walk's timer ticks.
  void Begin() {
    program_.Click(On("Main", "Command1"));
    program_.EnterText(static_cast<TextBox&>(On("InputName", "Text1(0)")), "カイ");
    program_.EnterText(static_cast<TextBox&>(On("InputName", "Text1(1)")), "リナ");
    program_.Confirm(*program_.TheStage().Find("InputName"));
    for (int line = 0; line < 20; ++line) program_.Click(On("Main", "Picture1"));
    auto& walk = static_cast<Timer&>(On("Main", "Timer1"));
    ASSERT_TRUE(walk.IsEnabled());
    walk.OnTick = [this, tick = walk.OnTick] {
      ++ticks_;
      tick();
    };
  }
  // Runs the game until the session ends, which it must.
  int Run() {
    After(kLongest, [this] {
      ADD_FAILURE() << "the game goes on";
      front_.SessionEnds();
    });
    return front_.Run();
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

  // With the files that every start reads, and a slot.
  static QuietServices Built() {
    const FolderStorage built(ORVANE_GAME_FOLDER);
    QuietServices services;
    for (const char* name : {"Item.dat", "Mapdata/map3-3.dat"}) {
      services.Files.Files[name] = built.Read(name).value_or("");
    }
    services.Files.Files["Save01.sav"] = "";
    return services;
  }

  QuietServices services_ = Built();
  Program program_{services_.All()};
  Translator texts_;
  Front front_{program_, texts_, 1.0, L"front test"};
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
    front_.Send([this](Program& program) { program.Click(On("Main", "Command1")); });
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
    front_.Send([this](Program& program) { program.Click(On("Main", "Command1")); });
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
