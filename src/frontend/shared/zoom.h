// What the player wishes of the windows' size: a scale for windows, or the full screen.
#pragma once

#include <optional>
#include <vector>

#include "src/frontend/shared/scale.h"

namespace orvane {

class Stage;

// The screen that the game opens on.
struct ScreenFacts {
  Extent Whole;      // in the screen's own pixels
  Extent Available;  // the same without panels
  double Scale =
      1;  // pixels of the screen to one of the game, as the player's own settings have it
  double Factor = 1;  // by which the desktop enlarges everything before the toolkit does
};

// The insides of all windows that a game may open, in its own pixels.
std::vector<Extent> InsidesOf(const Stage& stage);

class Zoom {
 public:
  // Windows start with the scale `start`, or where there is none with the best one. The
  // insides of all windows are given, the one with the menu bar first.
  Zoom(const ScreenFacts& screen, std::optional<double> start, const std::vector<Extent>& windows);

  // The next half step up or down; nothing where the first window would then not fit, or be smaller
  // than it was drawn.
  void Enlarge();
  void Reduce();
  // Back to the best scale for the screen.
  void Reset() { windowed_ = best_; }

  bool IsFullScreen() const { return full_screen_; }
  void SetFullScreen(bool full_screen) { full_screen_ = full_screen; }

  // The scale with which these windows are shown: on the full screen the largest with which all
  // fit, and so where one of them has been given its size; otherwise what the player has chosen, or
  // less where a window would not fit by that choice.
  double ScaleFor(const std::vector<Span>& windows) const;

  const ScreenFacts& TheScreen() const { return screen_; }

 private:
  ScreenFacts screen_;
  double best_;
  double windowed_;
  double least_;  // without regard to what fits: the game starts with it
  double largest_;
  bool full_screen_ = false;
};

}  // namespace orvane
