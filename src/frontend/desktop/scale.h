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

// The screen that the game will open on.
struct ScreenFacts {
  Extent Available;   // in the screen's own pixels, without panels
  double Factor = 1;  // by which the desktop already enlarges everything
};

constexpr int LargestScale = 4;

// The largest whole factor from 1 to LargestScale with which the first window fills no more than
// nine tenths of the available screen and all of them fit on it with their title bars and menus.
int ChooseScale(const Extent& available, const std::vector<Extent>& windows);

// Asks the window system for its primary screen; nothing when it has none. No toolkit application
// may exist yet: its factor is fixed once it does.
std::optional<ScreenFacts> AskScreen();

// Makes the toolkit enlarge everything so that a game pixel is `scale` pixels of the screen. Called
// before the application is made.
void FixScale(double scale, const ScreenFacts& screen);

// The player has fixed the toolkit's own factor by its environment variable.
bool ScaleIsFixed();

}  // namespace orvane
