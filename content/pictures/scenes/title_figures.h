// What stands before the title's landscape.
#pragma once

#include "content/pictures/scenes/canvas.h"

namespace orvane::paint::scene {

// Draws the ledge, the heroes and the dragon on a canvas of 960 by 640.
void DrawTitleFigures(Canvas& canvas);

}  // namespace orvane::paint::scene
