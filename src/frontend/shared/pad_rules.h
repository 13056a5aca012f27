// What a game pad does in the game: it walks, and works windows as keys do.
#pragma once

#include <array>

#include "src/frontend/shared/pad_source.h"
#include "src/frontend/shared/pad_state.h"
#include "src/game/program.h"

namespace orvane {

// How often a pad is looked for, in ms, while none is plugged in or the program is not in front.
constexpr int kPadSeldomMs = 1000;

// What a pad's buttons come to, carried out by the front end.
class PadHands {
 public:
  virtual ~PadHands() = default;

  // Keys reach the game's window now, if only its menu bar.
  virtual bool ReachesWindow() const = 0;
  // They reach it, and the menu bar has none of them.
  virtual bool ReachesGame() const = 0;

  // An arrow key is pressed or let go in the game's window.
  virtual void Walk(Direction direction, bool down) = 0;
  // An arrow key in whatever has the keyboard; from a slider, up and down lead away.
  virtual void Move(Direction direction) = 0;
  // Presses or chooses what has the keyboard.
  virtual void Accept() = 0;
  // The Escape key.
  virtual void Back() = 0;
  virtual void OpenMenus() = 0;
  // Opens the next tab, or with -1 the one before; where there are none, goes to the control after
  // or before.
  virtual void Turn(int step) = 0;
};

// The cross and the stick walk while keys reach the game's window, and move through buttons, lists
// and menus elsewhere, where they repeat while they are held.
class PadRules {
 public:
  explicit PadRules(PadHands& hands) : hands_(hands) {}

  // Takes in what is held down at `now`, in ms of a clock that does not go back.
  void Follow(const PadState& state, double now);

  // Reads a pad and takes that in; what is pressed while another program is in front is not for
  // this one. Returns in how many ms to read it again.
  int Read(PadSource& source, bool in_front, double now);

 private:
  void LetGo(const PadState& state);
  void Press(PadButton button);

  PadHands& hands_;
  PadState seen_{};
  std::array<bool, 4> walking_{};  // the game has the press and waits for the release
  double pressed_ = 0;             // when a direction was pressed last, or repeated
  bool repeats_ = false;
};

}  // namespace orvane
