// Rock walls seen from the front, made of facets lit from the upper left.
#pragma once

#include "content/pictures/tiles/draw.h"

namespace orvane::paint::tiles {

// The tone, about 1 to 6, of a rock wall that repeats every tile in both directions.
double FaceTone(int x, int y, int seed);

// The tone of mountain tops that repeat every tile in both directions.
double PeakTone(int x, int y);

}  // namespace orvane::paint::tiles
