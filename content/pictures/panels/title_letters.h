// The game's name in letters of its own.
#pragma once

#include "content/pictures/scenes/drawing.h"

namespace orvane::paint::panel {

// Draws the golden letters with their dark border, centred in a drawing of 400 by 64.
void DrawTitleLetters(scene::Drawing& drawing);

}  // namespace orvane::paint::panel
