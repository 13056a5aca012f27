// The keyboard's way into the game and its windows.
#pragma once

#include <functional>

#include "src/frontend/shared/events.h"
#include "src/frontend/shared/walking_keys.h"
#include "src/frontend/windows/windows/screen_window.h"

namespace orvane {

// The arrow of a key by the system's number.
std::optional<Direction> ArrowKey(WPARAM key);

class Keys {
 public:
  // `reaches` tells whether keys reach the game's window now.
  Keys(Events& events, std::function<bool()> reaches);

  // Takes a message of the loop for a screen's window, before it is dispatched. True where it is to
  // go no further.
  bool Take(const MSG& message, ScreenWindow& window);
  // Does what pressing a key does in a screen's window. False where that is the control's own
  // business.
  bool Press(WPARAM key, ScreenWindow& window);

  // The keyboard goes to another program, or comes from one.
  void Forget() { walking_.Forget(); }
  void Look();
  // Hands in what is outstanding if keys have begun to reach the window. Called after every event
  // in the game.
  void Follow() { walking_.Follow(); }

 private:
  Events& events_;
  WalkingKeys walking_;
};

}  // namespace orvane
