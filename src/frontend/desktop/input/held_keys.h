// Which keys are held down, and where each was pressed.
#pragma once

#include <QtGlobal>
#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <utility>

#include "src/frontend/desktop/input/keyboard.h"

class QKeyEvent;
class QObject;

namespace orvane {

class HeldKeys {
 public:
  // `ask` tells which keys are down on the keyboard itself, where the window system knows.
  explicit HeldKeys(std::function<std::optional<KeyCodes>()> ask) : ask_(std::move(ask)) {}

  // What a key event is, as against what it says of itself.
  struct Stroke {
    bool Repeats = false;  // the key was down before, and still is
    bool IsStray = false;  // it was pressed for another window, of this program or another one
  };

  // Takes in a press or a release that has come to a window.
  Stroke Take(const QKeyEvent& event, const QObject& window);

  // Whether the key is down, as far as is known; `code` is the number that key events carry.
  bool IsDown(uint32_t code) const { return code < down_.size() && down_[code]; }

  // The keyboard goes to another program.
  void Forget() { down_.reset(); }
  // It may have come from one: what was pressed there is down too.
  void Look();

 private:
  struct Press {
    const QObject* Window = nullptr;         // null where it was not seen
    std::optional<quint64> LastReleaseTime;  // that was seen since
  };

  bool Repeats(uint32_t code, const QKeyEvent& event) const;

  std::function<std::optional<KeyCodes>()> ask_;
  KeyCodes down_;
  std::array<Press, KeyCodes().size()> presses_{};
};

}  // namespace orvane
