// The toolkit's one factor by which everything in all windows is enlarged.
#pragma once

#include <optional>

#include "src/frontend/shared/zoom.h"

namespace orvane {

// Asks the toolkit for the primary screen; nothing when there is none. Called once, before the
// first SetScale.
std::optional<ScreenFacts> AskScreen();

// Makes the toolkit enlarge everything so that a game pixel is `scale` pixels of the screen. No
// window may exist on the window system's side meanwhile: those that do must be made anew.
void SetScale(double scale, const ScreenFacts& screen);

// The player has fixed the toolkit's own factor by its environment variable.
bool ScaleIsFixed();

}  // namespace orvane
