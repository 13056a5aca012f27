// Which keys are held down, and where each was pressed.
#pragma once

#include <array>
#include <bitset>
#include <cstdint>
#include <functional>
#include <optional>
#include <utility>

namespace orvane {

// One bit for each key, by the number that the window system gives it.
using KeyCodes = std::bitset<256>;

// What a window system says of a press or a release.
struct KeyEvent {
  uint32_t Code = 0;             // the key's number, below 256; 0 where there is no key to it
  bool IsPress = false;          // otherwise a release
  bool SaysRepeat = false;       // that it comes of holding the key down
  uint64_t Time = 0;             // in ms
  const void* Window = nullptr;  // that it came to
};

class HeldKeys {
 public:
  // `ask` tells which keys are down on the keyboard itself, where the window system knows.
  explicit HeldKeys(std::function<std::optional<KeyCodes>()> ask) : ask_(std::move(ask)) {}

  // What a key event is, as against what it says of itself.
  struct Stroke {
    bool Repeats = false;  // the key was down before, and still is
    bool IsStray = false;  // it was pressed for another window, of this program or another one
  };

  // Takes in a press or a release.
  Stroke Take(const KeyEvent& event);

  // Whether the key is down, as far as is known.
  bool IsDown(uint32_t code) const { return code < down_.size() && down_[code]; }

  // The keyboard goes to another program.
  void Forget() { down_.reset(); }
  // It may have come from one: what was pressed there is down too.
  void Look();

 private:
  struct Press {
    const void* Window = nullptr;             // null where it was not seen
    std::optional<uint64_t> LastReleaseTime;  // that was seen since
  };

  bool Repeats(const KeyEvent& event) const;

  std::function<std::optional<KeyCodes>()> ask_;
  KeyCodes down_;
  std::array<Press, KeyCodes().size()> presses_{};
};

}  // namespace orvane
