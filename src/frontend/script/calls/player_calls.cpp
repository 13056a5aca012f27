#include <array>

#include "src/frontend/script/calls/call.h"
#include "src/frontend/script/calls/calls.h"
#include "src/frontend/script/run/script_error.h"
#include "src/frontend/script/run/session.h"
#include "src/ui/reach.h"

namespace orvane {
namespace {

constexpr const char* kControl = "a control's name";
constexpr const char* kScreen = "a screen's name";
constexpr const char* kKey = "\"Up\", \"Down\", \"Left\" or \"Right\"";

// Does what a player does; a refusal fails the test.
template <class Action>
int Play(Call& call, const std::string& what, Action action) {
  Refusal refusal;
  call.TheSession().Run([&] { refusal = action(call.TheSession().TheProgram()); });
  if (!refusal.empty()) throw ScriptError("that a player can " + what, refusal);
  return 0;
}

std::string Name(const Call& call) {
  return std::string(call.Text(1, kControl));
}

Control& ControlOf(const Call& call) {
  return call.TheSession().TheNames().FindControl(call.Text(1, kControl));
}

Control& ControlOf(const Call& call, ControlKind kind, const char* what) {
  return call.TheSession().TheNames().FindControl(call.Text(1, kControl), kind, what);
}

Screen& ScreenOf(const Call& call) {
  return call.TheSession().TheNames().FindScreen(call.Text(1, kScreen));
}

// click(control [, x, y])
int Click(Call& call) {
  Control& control = ControlOf(call);
  const std::string what = "click " + Name(call);
  if (!call.Has(2) && !call.Has(3)) {
    return Play(call, what, [&](Program& program) { return program.Click(control); });
  }
  const double x = call.Number(2, "a number as x");
  const double y = call.Number(3, "a number as y");
  return Play(call, what + " at " + call.Shown(2) + ", " + call.Shown(3),
              [&](Program& program) { return program.ClickAt(control, x, y); });
}

// Labels, frames and separators only show something.
bool TakesClicks(const Control& control) {
  switch (control.Kind()) {
    case ControlKind::Label:
    case ControlKind::Frame:
    case ControlKind::Timer:
      return false;
    case ControlKind::Menu:
      return !static_cast<const MenuItem&>(control).IsSeparator();
    default:
      return true;
  }
}

// can_click(control)
int CanClickIt(Call& call) {
  const Control& control = ControlOf(call);
  return call.Return(TakesClicks(control) && CanClick(control));
}

// choose(list, row)
int Choose(Call& call) {
  Control& list = ControlOf(call);
  if (list.Kind() != ControlKind::List && list.Kind() != ControlKind::FileList) {
    throw ScriptError("the name of a list", Name(call));
  }
  const int row = call.Whole(2, "a row's number");
  return Play(call, "choose row " + std::to_string(row) + " of " + Name(call),
              [&](Program& program) { return program.Choose(list, row); });
}

// tab(control, n)
int Tab(Call& call) {
  auto& tabs = static_cast<TabStrip&>(ControlOf(call, ControlKind::Tabs, "a tab control"));
  const int tab = call.Whole(2, "a tab's number");
  return Play(call, "open tab " + std::to_string(tab) + " of " + Name(call),
              [&](Program& program) { return program.SelectTab(tabs, tab); });
}

// enter(textbox, text)
int EnterIt(Call& call) {
  auto& field = static_cast<TextBox&>(ControlOf(call, ControlKind::Field, "a text field"));
  const std::string text(call.Text(2, "a text"));
  return Play(call, "enter a text in " + Name(call),
              [&](Program& program) { return program.EnterText(field, text); });
}

// slide(slider, value)
int SlideIt(Call& call) {
  auto& slider = static_cast<Slider&>(ControlOf(call, ControlKind::Slider, "a slider"));
  const int value = call.Whole(2, "a slider's value");
  return Play(call, "move " + Name(call) + " to " + std::to_string(value),
              [&](Program& program) { return program.Slide(slider, value); });
}

// press(screen)
int Press(Call& call) {
  Screen& screen = ScreenOf(call);
  return Play(call, "press the mouse on " + screen.Name(),
              [&](Program& program) { return program.Press(screen); });
}

// close(screen)
int Close(Call& call) {
  Screen& screen = ScreenOf(call);
  return Play(call, "close " + screen.Name(),
              [&](Program& program) { return program.Close(screen); });
}

// activate(screen)
int Activate(Call& call) {
  Screen& screen = ScreenOf(call);
  return Play(call, "bring " + screen.Name() + " to the front",
              [&](Program& program) { return program.Activate(screen); });
}

Direction KeyOf(const Call& call) {
  struct KeyName {
    std::string_view Name;
    Direction Arrow;
  };
  constexpr std::array<KeyName, 4> keys = {{{"Up", Direction::Up},
                                            {"Down", Direction::Down},
                                            {"Left", Direction::Left},
                                            {"Right", Direction::Right}}};
  for (const KeyName& known : keys) {
    if (known.Name == call.Text(1, kKey)) return known.Arrow;
  }
  throw ScriptError(kKey, call.Shown(1));
}

// key_down(key)
int KeyDown(Call& call) {
  Program& program = call.TheSession().TheProgram();
  const Direction key = KeyOf(call);
  call.TheSession().Run([&] { program.KeyDown(key); });
  return 0;
}

// key_up(key)
int KeyUp(Call& call) {
  Program& program = call.TheSession().TheProgram();
  const Direction key = KeyOf(call);
  call.TheSession().Run([&] { program.KeyUp(key); });
  return 0;
}

}  // namespace

void RegisterPlayerCalls(lua_State* lua) {
  Register<&Click>(lua, "click");
  Register<&CanClickIt>(lua, "can_click");
  Register<&Choose>(lua, "choose");
  Register<&Tab>(lua, "tab");
  Register<&EnterIt>(lua, "enter");
  Register<&SlideIt>(lua, "slide");
  Register<&Press>(lua, "press");
  Register<&Close>(lua, "close");
  Register<&Activate>(lua, "activate");
  Register<&KeyDown>(lua, "key_down");
  Register<&KeyUp>(lua, "key_up");
}

}  // namespace orvane
