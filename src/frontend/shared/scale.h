// By how much windows can be enlarged so that they fit on a screen.
#pragma once

#include <optional>
#include <vector>

namespace orvane {

// A width and height in pixels.
struct Extent {
  double Width = 0;
  double Height = 0;
};

// What a window takes of the screen: its inside, which is enlarged, and the title bar above it,
// which is the window manager's and never is.
struct Span {
  Extent Inside;
  double Title = 0;
  // The inside that the window manager has given the window, in pixels of the screen, where it has
  // not been content with what the window asked for.
  std::optional<Extent> Given{};
};

constexpr int kLargestScale = 4;
constexpr double kMenuHeight = 22;   // of the first window's menu bar, enlarged with the window
constexpr double kTitleHeight = 30;  // in pixels of the screen

// The span of the first window, with its menu bar.
Span FirstSpan(const std::vector<Extent>& windows);

// The largest whole factor from 1 to kLargestScale with which the first window fills no more than
// nine tenths of the available screen and all of them fit on it with their title bars and menus.
int ChooseScale(const Extent& available, const std::vector<Extent>& windows);

// The same, where that leaves the first window no smaller than six tenths of what would fit;
// otherwise the half step above, if it fits as well: a small screen is worth more than whole
// pixels.
double ChooseStartScale(const Extent& available, const std::vector<Extent>& windows);

// The largest factor with which each of the windows fits on the display, or into what it has been
// given; at least 1, whatever the display.
double FittingScale(const Extent& display, const std::vector<Span>& windows);

}  // namespace orvane
