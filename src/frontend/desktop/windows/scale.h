// How large the windows are: the one factor by which everything in them is enlarged.
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
};

constexpr int LargestScale = 4;
constexpr double MenuHeight = 22;   // of the first window's menu bar, enlarged with the window
constexpr double TitleHeight = 30;  // in pixels of the screen

// The largest whole factor from 1 to LargestScale with which the first window fills no more than
// nine tenths of the available screen and all of them fit on it with their title bars and menus.
int ChooseScale(const Extent& available, const std::vector<Extent>& windows);

// The largest factor with which each of the windows fits on the display; at least 1, whatever the
// display.
double FittingScale(const Extent& display, const std::vector<Span>& windows);

// The screen that the game opens on.
struct ScreenFacts {
  Extent Whole;       // in the screen's own pixels
  Extent Available;   // the same without panels
  double Scale = 1;   // pixels of the screen to one of the game, by the player's own settings
  double Factor = 1;  // by which the desktop enlarges everything before the toolkit does
};

// Asks the toolkit for the primary screen; nothing when there is none. Called once, before the
// first SetScale.
std::optional<ScreenFacts> AskScreen();

// Makes the toolkit enlarge everything so that a game pixel is `scale` pixels of the screen. No
// window may exist on the window system's side meanwhile: those that do must be made anew.
void SetScale(double scale, const ScreenFacts& screen);

// The player has fixed the toolkit's own factor by its environment variable.
bool ScaleIsFixed();

}  // namespace orvane
