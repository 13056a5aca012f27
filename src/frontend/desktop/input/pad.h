// A game pad's way into the game: it walks, and works windows as keys do.
#pragma once

#include <QElapsedTimer>
#include <QTimer>
#include <array>
#include <functional>
#include <memory>

#include "src/frontend/desktop/input/pad_device.h"

namespace orvane {

class Events;

// The cross and the stick walk while keys reach the game's window, and move through buttons, lists
// and menus elsewhere. The accepting button presses and chooses, the other one is Escape, the
// shoulders turn the tabs or, where there are none, go to the control before or after, and the menu
// button opens the menus.
class Pad : public QObject {
 public:
  // `reaches` tells whether keys reach the game's window now. Nothing is looked for before Start.
  Pad(Events& events, std::function<bool()> reaches);

  // Reads the source from now on: often while there is a pad and the program is in front.
  void Start(std::unique_ptr<PadSource> source);
  // Reads it once.
  void Look();

 private:
  void Follow(const PadState& state);
  void Press(PadButton button);
  void Walk(const PadState& state);

  Events& events_;
  std::function<bool()> reaches_;
  std::unique_ptr<PadSource> source_;
  QTimer timer_;
  PadState seen_{};
  std::array<bool, 4> walking_{};  // the game has the press and waits for the release
  QElapsedTimer held_;             // since the last press, or repeat, of a direction
  bool repeats_ = false;
};

}  // namespace orvane
