// The gilt frame of the large icon.
#pragma once

#include "content/pictures/scenes/colour.h"

namespace orvane::paint::panel {

// The colour at (x, y), in sixty-fourths of the icon's side: the frame's where it lies, otherwise
// what is seen inside, in the frame's shadow.
scene::Colour IconFramed(scene::Colour inside, float x, float y);

}  // namespace orvane::paint::panel
