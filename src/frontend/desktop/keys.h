// The arrow keys, from the keyboard to the party's walk.
#pragma once

#include <QObject>
#include <array>
#include <cstdint>
#include <functional>

#include "src/game/program.h"

class QKeyEvent;

namespace orvane {

class Events;

// Watches the arrow keys of the whole application. A press goes to the game only while the game's
// window has the keyboard; a release that went elsewhere (a box, another window, another program)
// is handed in when the window has the keyboard again, so that nobody walks on by himself.
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
    bool Held = false;        // the game has its press and waits for its release
    bool Down = false;        // as far as the application's own windows have seen
    uint32_t NativeCode = 0;  // the key as the window system numbers it
  };

  // Whether the event must go no further.
  bool TakeKey(const QKeyEvent& event);
  void Press(Key key, uint32_t native_code);
  void Release(Key key);
  void Settle();
  void SettleLater();
  void ForgetKeys();
  void LookAtKeys();

  Events& events_;
  std::function<bool()> reaches_;
  std::array<KeyState, 4> keys_;
  bool reached_ = false;  // when last looked at
  bool settling_later_ = false;
};

}  // namespace orvane
