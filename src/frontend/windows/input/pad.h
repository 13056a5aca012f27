// A game pad's way into the game and its windows.
#pragma once

#include <functional>
#include <memory>

#include "src/frontend/shared/events.h"
#include "src/frontend/shared/pad_rules.h"
#include "src/frontend/windows/input/keys.h"

namespace orvane {

// What a pad needs to know of the windows, and does to them.
struct PadSurroundings {
  std::function<bool()> Reaches;           // keys reach the game's window now
  std::function<ScreenWindow*()> InFront;  // the screen's window that has the keys, or null
  std::function<void(WPARAM key)> Type;    // presses a key in whatever has the keyboard
  std::function<bool()> InMenu;            // a menu is open
};

class Pad : private PadHands {
 public:
  // `clock` is the window that gets the messages of the pad's timer, and hands them to Take.
  Pad(Events& events, HWND clock, PadSurroundings around);

  // Looks for a pad in a moment, and from then on.
  void StartLater() const;
  // The timer's message has come.
  void Take();

 private:
  void SetPace(UINT milliseconds);
  bool ReachesGame() const override { return around_.Reaches(); }
  bool ReachesWindow() const override { return around_.Reaches(); }
  void Walk(Direction direction, bool down) override;
  void Move(Direction direction) override;
  void Accept() override { around_.Type(VK_RETURN); }
  void Back() override { around_.Type(VK_ESCAPE); }
  void OpenMenus() override;
  void Turn(int step) override;

  Events& events_;
  HWND clock_;
  PadSurroundings around_;
  std::unique_ptr<PadSource> source_;
  PadRules rules_{*this};
  UINT pace_ = 0;
};

}  // namespace orvane
