// What is left of the living in the wastes.
#pragma once

#include "content/pictures/scenes/details.h"

namespace orvane::paint::scene {

// The ribs and the skull of something huge, half sunk in the ground, seen from the side.
void DrawSkeleton(Dresser& dresser);

// A bare tree with its foot at (x, 0, z), about 9 times `size` high.
void DrawDeadTree(Dresser& dresser, float x, float z, float size, int seed);

}  // namespace orvane::paint::scene
