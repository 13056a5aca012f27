// The last dragon's hall as a solid: where stone is, and of which kind.
#pragma once

#include "content/pictures/shared/vec.h"

namespace orvane::paint::scene {

enum class Stuff { Floor, Pillar, Rock, Gate, Disc, Crystal };

// The middle of the glowing disc behind the hall, and its radius.
constexpr Vec kDiscCentre{0, 41, 262};
constexpr float kDiscRadius = 25;
// Where crystals grow, one cluster on each side of the hall at these depths.
constexpr float kCrystalSide = 34;
constexpr float kCrystalDepths[] = {84, 158};

struct Solid {
  float Distance = 0;  // to the nearest stone, a lower bound
  Stuff stuff = Stuff::Floor;
};

// The nearest stone to the place; the hall stands on y = 0 and runs along z.
Solid HallAt(Vec place);

}  // namespace orvane::paint::scene
