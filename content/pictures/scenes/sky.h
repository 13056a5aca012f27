// Skies: a gradient and a layer of clouds.
#pragma once

#include "content/pictures/scenes/colour.h"
#include "content/pictures/shared/vec.h"

namespace orvane::paint::scene {

// A layer of clouds: its colours in shade and in light, how much sky is free of it (0 to 1), how
// wide its soft border is, how fine it is, and its chance.
struct CloudLayer {
  Colour Shade;
  Colour Lit;
  float Free = 0.5F;
  float Border = 0.18F;
  float Fineness = 1;
  int Seed = 0;
};

// From `low` at the horizon to `high` overhead; the direction has length 1.
Colour GradientSky(Vec direction, Colour high, Colour low);

// The sky with the clouds over it, lit from `light`.
Colour Clouds(Colour sky, Vec direction, const CloudLayer& layer, Vec light);

}  // namespace orvane::paint::scene
