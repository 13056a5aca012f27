// The keys: the party's walk, and what must not act by accident.
#pragma once

#include <QObject>
#include <array>
#include <cstdint>
#include <functional>

#include "src/frontend/desktop/input/held_keys.h"
#include "src/game/program.h"

class QKeyEvent;

namespace orvane {

class Events;

// Watches the keys of the whole application. The arrow keys walk: a press goes to the game only
// while the game's window has the keyboard; a release that went elsewhere (a box, another window,
// another program) is handed in when the window has the keyboard again, so that the party does not
// walk on by itself. A key that goes on repeating after its press has brought another window does
// nothing there, and no key that presses or closes something does so by repeating.
class Keys : public QObject {
 public:
  // `reaches` tells whether keys reach the game's window now.
  Keys(Events& events, std::function<bool()> reaches);

  // Hands in what is outstanding if keys have begun to reach the window. Called after every event
  // in the game.
  void Follow();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  struct KeyState {
    bool Held = false;  // the game has its press and waits for its release
    uint32_t Code = 0;  // the key as the window system numbers it
  };

  // Whether the event must go no further.
  bool TakeKey(const QKeyEvent& event, const QObject& window);
  void Walk(KeyState& state, Key key);
  void Halt(KeyState& state, Key key);
  void Settle();
  void SettleLater();

  Events& events_;
  std::function<bool()> reaches_;
  HeldKeys held_;
  std::array<KeyState, 4> keys_;
  bool reached_ = false;  // when last looked at
  bool settling_later_ = false;
};

}  // namespace orvane
