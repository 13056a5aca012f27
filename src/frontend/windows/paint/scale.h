// Pixels of the game and pixels of the screen.
#pragma once

#include <cmath>

#include "src/frontend/windows/system/windows_api.h"
#include "src/ui/control.h"

namespace orvane {

// The screen's pixel at which a place of the game's begins.
inline int ToScreen(double own, double scale) {
  // Absurd places come from absurd numbers in a save; a control far away is as good.
  return static_cast<int>(std::lround(std::fmax(-8000, std::fmin(8000, own)) * scale));
}

// The screen's pixels that a place takes; places that touch still do.
inline RECT ToScreen(const Place& place, double scale) {
  return {ToScreen(place.Left, scale), ToScreen(place.Top, scale),
          ToScreen(place.Left + place.Width, scale), ToScreen(place.Top + place.Height, scale)};
}

}  // namespace orvane
