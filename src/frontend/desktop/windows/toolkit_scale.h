// The toolkit's one factor by which everything in all windows is enlarged.
#pragma once

#include <functional>
#include <optional>

#include "src/frontend/shared/zoom.h"

namespace orvane {

// The player's own way to fix the factor: an environment variable of the toolkit.
constexpr const char* kScaleVariable = "QT_SCALE_FACTOR";

// Asks the toolkit for the primary screen; nothing when there is none. Called once, before the
// first SetScale.
std::optional<ScreenFacts> AskScreen();

// Where the toolkit was built against without its private headers, it takes one factor for the
// whole run and before the application is made: `choose` says which for the screen that there is.
// Otherwise nothing. `count` and `arguments` are those of the program.
void SetFirstScale(const std::function<double(const ScreenFacts&)>& choose, int count,
                   char** arguments);

// Makes the toolkit enlarge everything so that a game pixel is `scale` pixels of the screen. No
// window may exist on the window system's side meanwhile: those that do must be made anew. Without
// the private headers it does nothing.
void SetScale(double scale, const ScreenFacts& screen);

// The factor is fixed by that variable.
bool ScaleIsFixed();

}  // namespace orvane
