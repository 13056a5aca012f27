#include "src/frontend/windows/input/keys.h"

#include <utility>

#include "src/frontend/windows/views/field_view.h"
#include "src/frontend/windows/views/tabs_view.h"
#include "src/game/program.h"

namespace orvane {
namespace {

KeyCodes AskKeyboard() {
  KeyCodes down;
  for (int key = 1; key < 256; ++key) {
    down[static_cast<size_t>(key)] = GetAsyncKeyState(key) < 0;
  }
  return down;
}

// Keys that press, choose, open or close something.
bool ActsAtOnce(WPARAM key) {
  return key == VK_RETURN || key == VK_SPACE || key == VK_ESCAPE || key == VK_F10;
}

bool IsHeld(int key) {
  return GetKeyState(key) < 0;
}

}  // namespace

std::optional<Direction> ArrowKey(WPARAM key) {
  switch (key) {
    case VK_LEFT:
      return Direction::Left;
    case VK_UP:
      return Direction::Up;
    case VK_RIGHT:
      return Direction::Right;
    case VK_DOWN:
      return Direction::Down;
    default:
      return std::nullopt;
  }
}

Keys::Keys(Events& events, std::function<bool()> reaches)
    : events_(events),
      // While the menu bar has the keys the system runs a loop of its own, which they do not leave.
      walking_({std::move(reaches), [] { return false; }, &AskKeyboard,
                [&events](Direction key, bool down) { SendArrow(events, key, down); }}) {}

void Keys::Look() {
  walking_.Look();
  if (walking_.IsOutstanding()) walking_.Settle();
}

bool Keys::Take(const MSG& message, ScreenWindow& window) {
  constexpr LPARAM was_down = 1 << 30;
  const bool is_press = message.message == WM_KEYDOWN;
  if (!is_press && message.message != WM_KEYUP) return false;
  const auto code = static_cast<uint32_t>(message.wParam);
  const bool types = dynamic_cast<const FieldView*>(View::Of(message.hwnd)) != nullptr;
  const bool says_repeat = is_press && (message.lParam & was_down) != 0;
  if (walking_.Take({code, is_press, says_repeat, message.time, window.Handle()},
                    {ArrowKey(message.wParam), ActsAtOnce(message.wParam), types})) {
    return true;
  }
  return is_press && Press(message.wParam, window);
}

bool Keys::Press(WPARAM key, ScreenWindow& window) {
  View* view = window.KeysTo().Current();
  const bool shift = IsHeld(VK_SHIFT);
  if (key == VK_TAB) {
    if (IsHeld(VK_CONTROL)) {
      window.KeysTo().TurnTab(shift ? -1 : 1, events_);
    } else {
      window.KeysTo().Step(shift ? -1 : 1);
    }
    return true;
  }
  if (key == VK_ESCAPE) {
    events_.Send([&window](Program& program) { program.GoBack(window.Model()); });
    return true;
  }
  if (view == nullptr) return false;
  if (key == VK_RETURN) {
    view->Press();
    return true;
  }
  const auto arrow = ArrowKey(key);
  if (!arrow) return false;
  if (!view->Uses(key)) {
    window.KeysTo().Move(*arrow);
    return true;
  }
  auto* tabs = dynamic_cast<TabsView*>(view);
  if (tabs == nullptr) return false;
  tabs->Turn(*arrow == Direction::Left ? -1 : 1);
  return true;
}

}  // namespace orvane
