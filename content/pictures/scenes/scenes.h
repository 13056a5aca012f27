// The painted scenes, each finished as its sheet.
#pragma once

#include "tools/paint/recipe.h"

namespace orvane::paint::scene {

Image PaintTitle();        // 320 x 160, shown 1.5 times as wide and twice as high
Image PaintGroundOpen();   // 480 x 288, grass land
Image PaintGroundWaste();  // 480 x 288, barren land and caves
Image PaintGroundLair();   // 480 x 288, the last dragon's lair
Image PaintEndingStill();  // 454 x 300, behind the credits

}  // namespace orvane::paint::scene
