// Rock walls seen from the front and mountain tops, made of facets lit from the upper left.
#pragma once

#include "content/pictures/tiles/draw.h"

namespace orvane::paint::tiles {

// The tone, about 0 to 7, of a rock wall of upright columns that repeats every tile to the sides.
// Rows of a wall take a stratum each, so that no two rows are alike.
double FaceTone(int x, int y, int stratum);

// The tone of mountain tops that repeat every tile in both directions.
double SummitTone(int x, int y);

// The tone of dark rock seen from above, without any light on it; repeats every tile.
double CaveTopTone(int x, int y);

// The colour of an old wall of dressed blocks: `down` pixels, 0 or more, from its top.
Colour BlockColour(int x, int down);

}  // namespace orvane::paint::tiles
