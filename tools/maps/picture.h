// A whole map as a picture, to look at it.
#pragma once

#include "tools/maps/tile_map.h"
#include "tools/paint/recipe.h"

namespace orvane::maps {

// The map drawn with the tile sheet (480 x 128), enlarged by whole pixels. `marked` darkens the
// cells that cannot be walked on.
paint::Image Picture(const TileMap& map, const paint::Image& sheet, int scale, bool marked);

}  // namespace orvane::maps
