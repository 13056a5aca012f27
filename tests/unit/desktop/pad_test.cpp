#include "src/frontend/desktop/input/pad.h"

#include <SDL.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QListWidget>
#include <QPushButton>
#include <QSlider>

#include "src/frontend/desktop/windows/windows.h"
#include "src/frontend/shared/events.h"
#include "src/game/program.h"
#include "tests/unit/desktop/test_services.h"

namespace orvane {
namespace {

PadState With(std::initializer_list<PadButton> buttons) {
  PadState state{};
  for (const PadButton button : buttons) state[static_cast<size_t>(button)] = true;
  return state;
}

// A pad that SDL itself makes up, plugged in and out like a real one.
TEST(PadDevice, ReadsAPadThatComesAndGoes) {
  const std::unique_ptr<PadSource> device = OpenPads();
  ASSERT_FALSE(device->Read().has_value()) << "a real pad is plugged in";
  const int number = SDL_JoystickAttachVirtual(SDL_JOYSTICK_TYPE_GAMECONTROLLER, 6, 15, 0);
  ASSERT_GE(number, 0) << SDL_GetError();
  SDL_Joystick* pad = SDL_JoystickOpen(number);
  ASSERT_NE(pad, nullptr);
  ASSERT_TRUE(device->Read().has_value());
  EXPECT_EQ(*device->Read(), PadState{});
  SDL_JoystickSetVirtualButton(pad, SDL_CONTROLLER_BUTTON_A, 1);
  SDL_JoystickSetVirtualButton(pad, SDL_CONTROLLER_BUTTON_DPAD_UP, 1);
  EXPECT_EQ(device->Read(), With({PadButton::Accept, PadButton::Up}));
  SDL_JoystickSetVirtualButton(pad, SDL_CONTROLLER_BUTTON_A, 0);
  SDL_JoystickSetVirtualButton(pad, SDL_CONTROLLER_BUTTON_DPAD_UP, 0);
  SDL_JoystickSetVirtualAxis(pad, SDL_CONTROLLER_AXIS_LEFTX, -30000);
  EXPECT_EQ(device->Read(), With({PadButton::Left}));
  SDL_JoystickDetachVirtual(number);
  EXPECT_FALSE(device->Read().has_value());
  SDL_JoystickClose(pad);
}

// SDL keeps its events until they are asked for, and nothing here asks.
TEST(PadDevice, LeavesNoEventsToPileUp) {
  const std::unique_ptr<PadSource> device = OpenPads();
  const int number = SDL_JoystickAttachVirtual(SDL_JOYSTICK_TYPE_GAMECONTROLLER, 6, 15, 0);
  ASSERT_GE(number, 0) << SDL_GetError();
  SDL_Joystick* pad = SDL_JoystickOpen(number);
  for (Sint16 way = 1000; way < 1050; ++way) {
    SDL_JoystickSetVirtualAxis(pad, SDL_CONTROLLER_AXIS_LEFTX, way);
    ASSERT_TRUE(device->Read().has_value());
  }
  EXPECT_FALSE(SDL_HasEvents(SDL_FIRSTEVENT, SDL_LASTEVENT));
  SDL_JoystickDetachVirtual(number);
  SDL_JoystickClose(pad);
}

class ScriptedPad : public PadSource {
 public:
  explicit ScriptedPad(const PadState& state) : state_(state) {}
  std::optional<PadState> Read() override { return state_; }

 private:
  const PadState& state_;
};

// Everything that reaches the game counts as one event.
class CountedEvents : public Events {
 public:
  void Send(const std::function<void(Program&)>& /*event*/) override { ++Count; }
  int Count = 0;
};

class PadTest : public testing::Test {
 protected:
  PadTest() : pad_(events_, [this] { return reaches_; }) {
    pad_.Start(std::make_unique<ScriptedPad>(state_));
    window_.show();
    window_.activateWindow();
    QApplication::processEvents();
  }

  void Show(const PadState& state) {
    state_ = state;
    pad_.Look();
  }

  CountedEvents events_;
  bool reaches_ = false;
  PadState state_{};
  Pad pad_;
  QWidget window_;
};

TEST_F(PadTest, WalksWhileKeysReachTheField) {
  reaches_ = true;
  Show(With({PadButton::Left}));
  Show(With({PadButton::Left}));
  EXPECT_EQ(events_.Count, 1) << "the press, once";
  Show({});
  EXPECT_EQ(events_.Count, 2) << "the release";
}

TEST_F(PadTest, HandsInAReleaseThatWentElsewhere) {
  reaches_ = true;
  Show(With({PadButton::Left}));
  reaches_ = false;
  Show({});
  EXPECT_EQ(events_.Count, 1);
  reaches_ = true;
  Show({});
  EXPECT_EQ(events_.Count, 2);
}

TEST_F(PadTest, PressesAButtonOnceForEachPress) {
  QPushButton button(&window_);
  button.show();
  button.setFocus();
  ASSERT_EQ(QApplication::focusWidget(), &button);
  int clicks = 0;
  QObject::connect(&button, &QPushButton::clicked, [&clicks] { ++clicks; });
  Show(With({PadButton::Accept}));
  Show(With({PadButton::Accept}));
  EXPECT_EQ(clicks, 1);
  Show({});
  Show(With({PadButton::Accept}));
  EXPECT_EQ(clicks, 2);
}

TEST_F(PadTest, MovesTheHighlightOfAListAndGoesFromControlToControl) {
  QListWidget list(&window_);
  QPushButton button(&window_);
  list.addItems({"one", "two", "three"});
  list.setCurrentRow(0);
  list.show();
  button.show();
  list.setFocus();
  Show(With({PadButton::Down}));
  Show({});
  Show(With({PadButton::Down}));
  EXPECT_EQ(list.currentRow(), 2);
  Show(With({PadButton::Next}));
  EXPECT_EQ(QApplication::focusWidget(), &button);
  Show({});
  Show(With({PadButton::Previous}));
  EXPECT_EQ(QApplication::focusWidget(), &list);
}

TEST_F(PadTest, DoesNotPressInANewWindowWhatWasPressedInTheField) {
  QListWidget list(&window_);
  list.addItems({"one", "two", "three"});
  list.setCurrentRow(0);
  list.show();
  list.setFocus();
  reaches_ = true;
  Show(With({PadButton::Down}));
  reaches_ = false;
  Show(With({PadButton::Down}));
  EXPECT_EQ(list.currentRow(), 0);
}

// The real windows of the game, worked by a pad.
class PadInGame : public testing::Test {
 protected:
  PadInGame()
      : program_(quiet_.All()),
        events_(program_),
        windows_(program_.TheStage(), events_, Zoom({{1280, 1024}, {1280, 1024}}, 1, {})),
        pad_(events_, [this] { return program_.TheStage().Active() == Find("Main"); }) {
    program_.TheState().GameStarted = kTrue;
    program_.TheState().OpeningDone = kTrue;
  }

  Screen* Find(const char* name) { return program_.TheStage().Find(name); }

  const ScreenWindow& Open(const char* name) {
    program_.Enter([&] { program_.TheStage().Show(*Find(name)); });
    windows_.Follow();
    QApplication::processEvents();
    pad_.Start(std::make_unique<ScriptedPad>(state_));
    return *windows_.Of(Find(name));
  }

  void Push(PadButton button) {
    for (const PadState& state : {With({button}), PadState{}}) {
      state_ = state;
      pad_.Look();
      windows_.Follow();
    }
  }

  TestServices quiet_;
  Program program_;
  ToProgram events_;
  Windows windows_;
  PadState state_{};
  Pad pad_;
};

TEST_F(PadInGame, TheCrossLeavesASliderUpwardsAndMovesItSideways) {
  const ScreenWindow& window = Open("Custom");
  const auto& slider = static_cast<const Slider&>(*Find("Custom")->Find("Slider1"));
  window.findChild<QSlider*>()->setFocus();
  Push(PadButton::Right);
  ASSERT_EQ(slider.Value, 16);
  Push(PadButton::Up);
  EXPECT_EQ(slider.Value, 16);
  EXPECT_EQ(window.focusWidget()->objectName(), "Text1(1)");
}

TEST_F(PadInGame, TheShouldersTurnTheTabsAndElsewhereGoThroughTheControls) {
  Open("Battle");
  auto& tabs = static_cast<TabStrip&>(*Find("Battle")->Find("SSTab1"));
  Push(PadButton::Next);
  EXPECT_EQ(tabs.Tab(), 1);
  Push(PadButton::Previous);
  EXPECT_EQ(tabs.Tab(), 0);
  const ScreenWindow& items = Open("Item");
  Push(PadButton::Next);
  EXPECT_EQ(items.focusWidget()->objectName(), "Command8");
}

TEST_F(PadInGame, ABattleIsCommanded) {
  const ScreenWindow& window = Open("Battle");
  auto& targets = static_cast<ListBox&>(*Find("Battle")->Find("List2"));
  const auto& action = static_cast<const Timer&>(*Find("Battle")->Find("Timer1"));
  Push(PadButton::Accept);
  ASSERT_TRUE(targets.Visible);
  EXPECT_EQ(window.focusWidget()->objectName(), "List2");
  Push(PadButton::Down);
  Push(PadButton::Down);
  EXPECT_TRUE(targets.Visible) << "the highlight chooses nothing";
  Push(PadButton::Accept);
  EXPECT_FALSE(targets.Visible);
  EXPECT_EQ(targets.ListIndex, 1);
  EXPECT_TRUE(action.IsEnabled());
}

TEST_F(PadInGame, TheMenuButtonOpensAMenuThatTheCrossAndTheOtherButtonsWork) {
  Open("Version");
  program_.Enter([this] { program_.TheStage().Unload(*Find("Version")); });
  Open("Main");
  Push(PadButton::Menu);
  ASSERT_NE(QApplication::activePopupWidget(), nullptr);
  Push(PadButton::Back);
  EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
  Push(PadButton::Menu);
  Push(PadButton::Right);  // to the things
  Push(PadButton::Down);
  Push(PadButton::Accept);
  EXPECT_TRUE(Find("Item")->IsVisible());
}

// From SDL's own pad to the keys of the field.
TEST_F(PadInGame, APadThatIsPluggedInWalks) {
  Open("Main");
  pad_.Start(OpenPads());
  const int number = SDL_JoystickAttachVirtual(SDL_JOYSTICK_TYPE_GAMECONTROLLER, 6, 15, 0);
  ASSERT_GE(number, 0) << SDL_GetError();
  SDL_Joystick* pad = SDL_JoystickOpen(number);
  SDL_JoystickSetVirtualButton(pad, SDL_CONTROLLER_BUTTON_DPAD_LEFT, 1);
  pad_.Look();
  EXPECT_EQ(program_.TheState().KeyLeft, kTrue);
  SDL_JoystickSetVirtualButton(pad, SDL_CONTROLLER_BUTTON_DPAD_LEFT, 0);
  SDL_JoystickSetVirtualAxis(pad, SDL_CONTROLLER_AXIS_LEFTY, 30000);
  pad_.Look();
  EXPECT_EQ(program_.TheState().KeyLeft, kFalse);
  EXPECT_EQ(program_.TheState().KeyDown, kTrue);
  SDL_JoystickDetachVirtual(number);
  pad_.Look();
  EXPECT_EQ(program_.TheState().KeyDown, kFalse) << "pulled out, it lets go";
  SDL_JoystickClose(pad);
}

}  // namespace
}  // namespace orvane
