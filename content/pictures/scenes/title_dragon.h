// The dragon of the title, seen close: head, neck, chest and wings.
#pragma once

#include "content/pictures/figures/render.h"

namespace orvane::paint::scene {

// The dragon looks down to the left. The sprite is meant for the title's fine canvas.
Sprite RenderTitleDragon();

}  // namespace orvane::paint::scene
