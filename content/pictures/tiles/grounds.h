// The plain grounds as pictures of one tile, for the sheet and as the ground of other tiles.
#pragma once

#include "content/pictures/tiles/draw.h"

namespace orvane::paint::tiles {

// Every variant of a ground fits every other on all four sides. Variants outside give the first.
Image GrassTile(int variant);  // 0..3 plain, 4 white flowers, 5 yellow flowers
Image SandTile(int variant);   // 0..2 plain, 3 shells
Image PathTile();
Image LitterTile(int variant);  // 0 plain, 1 roots, 2 ferns
Image PavingTile(int variant);  // 0 whole, 1 cracked
Image WasteTile(int variant);   // 0..3
Image GravelTile(int variant);  // 0..2 plain, 3 in grass, 4 rubble, 5 cracked
Image MarshTile(int variant);   // 0 moss and sedge, 1 moss and gleams of water
Image WaterTile(int variant);   // 0..2
Image SandbankTile();
Image LavaTile();

}  // namespace orvane::paint::tiles
