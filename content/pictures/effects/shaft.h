// Crystals and spires: shafts that end in a point.
#pragma once

#include <vector>

#include "content/pictures/effects/cell.h"

namespace orvane::paint::effects {

// A shaft, lit on its left face.
struct Shaft {
  double RootX;
  double RootY;
  double Turn;  // radians, 0 straight up, positive to the right
  double Length;
  double Width;  // half
};

// Several shafts, the later ones in front. `shoulder` is where they begin to narrow, 0 to 1.
Shape Cluster(const std::vector<Shaft>& shafts, double shoulder, const SixTones& ramp);

}  // namespace orvane::paint::effects
