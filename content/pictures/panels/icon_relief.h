// The large icon: the dragon's eye as a lit relief, with room for scales and the grain of an iris.
#pragma once

#include "content/pictures/scenes/canvas.h"

namespace orvane::paint::panel {

// The icon `size` pixels square, 64 or more.
scene::Canvas DrawIconRelief(int size);

}  // namespace orvane::paint::panel
