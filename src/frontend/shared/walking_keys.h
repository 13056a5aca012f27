// The keys: the party's walk, and what must not act by accident.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <optional>

#include "src/frontend/shared/held_keys.h"
#include "src/game/program.h"

namespace orvane {

// What a key does where it is pressed, as the toolkit knows it.
struct KeyMeaning {
  std::optional<Direction> Arrow;  // it is one of the four arrows
  bool ActsAtOnce = false;         // it presses, chooses, opens or closes something
  bool Types = false;              // what has the keyboard takes text
};

// The arrow keys walk: a press goes to the game only while its window has the keyboard; a release
// that went elsewhere (a box, another window, another program) is handed in when the window has the
// keyboard again, so that nobody walks on by himself. A key that goes on repeating after its press
// has brought another window does nothing there, and no key that presses or closes something does
// so by repeating.
class WalkingKeys {
 public:
  // Around the keys, as the front end has it.
  struct Surroundings {
    std::function<bool()> Reaches;         // keys reach the game's window now
    std::function<bool()> MenuBarHasKeys;  // the menu bar has them, though no menu is open
    std::function<std::optional<KeyCodes>()> AskKeyboard;  // as HeldKeys has it
    std::function<void(Direction, bool down)> Send;        // a press or a release, to the game
  };

  explicit WalkingKeys(Surroundings around);

  // Takes in a press or a release. Whether the event must go no further.
  bool Take(const KeyEvent& event, const KeyMeaning& meaning);

  // The keyboard goes to another program.
  void Forget() { held_.Forget(); }
  // It may have come from one.
  void Look() { held_.Look(); }

  // The game has a press and waits for its release.
  bool IsOutstanding() const;
  // Hands in the releases of keys that are no longer down.
  void Settle();
  // Settles if keys have begun to reach the game's window. Called after every event in the game.
  void Follow();

 private:
  struct KeyState {
    bool Held = false;  // the game has its press and waits for its release
    uint32_t Code = 0;  // the key as the window system numbers it
  };

  void Walk(KeyState& state, Direction key);
  void Halt(KeyState& state, Direction key);

  Surroundings around_;
  HeldKeys held_;
  std::array<KeyState, 4> keys_{};
  bool reached_ = false;  // when last looked at
};

}  // namespace orvane
