#include "src/frontend/desktop/pad.h"

#include <SDL.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QListWidget>
#include <QPushButton>

#include "src/frontend/desktop/events.h"

namespace orvane {
namespace {

PadState With(std::initializer_list<PadButton> buttons) {
  PadState state{};
  for (const PadButton button : buttons) state[static_cast<size_t>(button)] = true;
  return state;
}

PadState Pushed(PadStick& stick, double x, double y) {
  PadState state{};
  stick.Add(x, y, state);
  return state;
}

TEST(PadStick, gives_the_direction_of_the_longer_way) {
  PadStick stick;
  EXPECT_EQ(Pushed(stick, 0.9, 0.2), With({PadButton::Right}));
  EXPECT_EQ(Pushed(stick, -0.9, 0.2), With({PadButton::Left}));
  EXPECT_EQ(Pushed(stick, 0.2, -0.9), With({PadButton::Up}));
  EXPECT_EQ(Pushed(stick, 0.2, 0.9), With({PadButton::Down}));
}

TEST(PadStick, is_at_rest_near_the_middle) {
  PadStick stick;
  EXPECT_EQ(Pushed(stick, 0.49, 0.49), PadState{});
}

TEST(PadStick, lets_go_later_than_it_takes) {
  PadStick stick;
  EXPECT_EQ(Pushed(stick, 0.45, 0), PadState{});
  EXPECT_EQ(Pushed(stick, 0.55, 0), With({PadButton::Right}));
  EXPECT_EQ(Pushed(stick, 0.4, 0), With({PadButton::Right}));
  EXPECT_EQ(Pushed(stick, 0.3, 0), PadState{});
}

TEST(PadStick, does_not_waver_on_the_diagonal) {
  PadStick stick;
  EXPECT_EQ(Pushed(stick, 0.7, 0.6), With({PadButton::Right}));
  EXPECT_EQ(Pushed(stick, 0.7, 0.8), With({PadButton::Right}));
  EXPECT_EQ(Pushed(stick, 0.6, 0.8), With({PadButton::Down}));
  EXPECT_EQ(Pushed(stick, 0.8, 0.7), With({PadButton::Down}));
}

// A pad that SDL itself makes up, plugged in and out like a real one.
TEST(PadDevice, reads_a_pad_that_comes_and_goes) {
  PadDevice device;
  ASSERT_FALSE(device.Read().has_value()) << "a real pad is plugged in";
  const int number = SDL_JoystickAttachVirtual(SDL_JOYSTICK_TYPE_GAMECONTROLLER, 6, 15, 0);
  ASSERT_GE(number, 0) << SDL_GetError();
  SDL_Joystick* pad = SDL_JoystickOpen(number);
  ASSERT_NE(pad, nullptr);
  ASSERT_TRUE(device.Read().has_value());
  EXPECT_EQ(*device.Read(), PadState{});
  SDL_JoystickSetVirtualButton(pad, SDL_CONTROLLER_BUTTON_A, 1);
  SDL_JoystickSetVirtualButton(pad, SDL_CONTROLLER_BUTTON_DPAD_UP, 1);
  EXPECT_EQ(device.Read(), With({PadButton::Accept, PadButton::Up}));
  SDL_JoystickSetVirtualButton(pad, SDL_CONTROLLER_BUTTON_A, 0);
  SDL_JoystickSetVirtualButton(pad, SDL_CONTROLLER_BUTTON_DPAD_UP, 0);
  SDL_JoystickSetVirtualAxis(pad, SDL_CONTROLLER_AXIS_LEFTX, -30000);
  EXPECT_EQ(device.Read(), With({PadButton::Left}));
  SDL_JoystickDetachVirtual(number);
  EXPECT_FALSE(device.Read().has_value());
  SDL_JoystickClose(pad);
}

class ScriptedPad : public PadSource {
 public:
  explicit ScriptedPad(const PadState& state) : state_(state) {}
  std::optional<PadState> Read() override { return state_; }

 private:
  const PadState& state_;
};

// What reaches the game counts as an event each.
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

TEST_F(PadTest, walks_while_keys_reach_the_field) {
  reaches_ = true;
  Show(With({PadButton::Left}));
  Show(With({PadButton::Left}));
  EXPECT_EQ(events_.Count, 1) << "the press, once";
  Show({});
  EXPECT_EQ(events_.Count, 2) << "the release";
}

TEST_F(PadTest, hands_in_a_release_that_went_elsewhere) {
  reaches_ = true;
  Show(With({PadButton::Left}));
  reaches_ = false;
  Show({});
  EXPECT_EQ(events_.Count, 1);
  reaches_ = true;
  Show({});
  EXPECT_EQ(events_.Count, 2);
}

TEST_F(PadTest, presses_a_button_once_for_each_press) {
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

TEST_F(PadTest, moves_the_highlight_of_a_list_and_goes_from_control_to_control) {
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

TEST_F(PadTest, does_not_press_in_a_new_window_what_was_pressed_in_the_field) {
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

}  // namespace
}  // namespace orvane
