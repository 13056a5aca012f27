// The last stage: slabs of marble over a starry void.
#include <algorithm>
#include <cmath>

#include "content/pictures/tiles/families.h"
#include "content/pictures/tiles/noise.h"
#include "content/pictures/tiles/palette.h"

namespace orvane::paint::tiles {
namespace {

// Polished slabs with a slanting sheen; the variants are cut in four or inlaid with a square.
Image LastFloor(int variant) {
  return Fill(TileSize, TileSize, [&](int x, int y) -> Colour {
    if (x == 15 || y == 15) return 0xA49CB6;
    if (x == 0 || y == 0) return 0xECE8F2;
    if (variant == 1) {
      if (x == 7 || y == 7) return 0xB6AEC6;
      if (x == 8 || y == 8) return 0xE2DEEA;
    }
    if (variant == 2) {
      const int inset = std::min(std::min(x, 15 - x), std::min(y, 15 - y));
      if (inset == 3) return x + y < 15 ? 0xB6AEC6 : 0xE6E2EE;
      if (inset > 5 && std::abs(x - 7.5) + std::abs(y - 7.5) < 2.6) return Gold[3];
    }
    return x + y < 13 ? 0xD8D3DF : x + y < 20 ? Marble[3] : 0xC6C0D0;
  });
}

Image Glyph() {
  Image tile = LastFloor(0);
  Stamp(tile, 2, 2,
        {"...gggggg...", "..g......g..", ".g..gGGg..g.", "g..g.gg.g..g", "g.g.gGGg.g.g",
         "gGGgG..GgGGg", "gGGgG..GgGGg", "g.g.gGGg.g.g", "g..g.gg.g..g", ".g..gGGg..g.",
         "..g......g..", "...gggggg..."},
        {{'g', Gold[2]}, {'G', Gold[3]}});
  return tile;
}

Image LastStairs() {
  return Fill(TileSize, TileSize, [](int x, int y) -> Colour {
    if (x == 0 || x == 15) return Gold[2];
    const int step = y % 4;
    return Marble[step == 0 ? 5 : step == 3 ? 1 : step == 2 ? 3 : 4];
  });
}

// Faint stars only: a bright one would come back in every tile and show the grid.
Image Void() {
  Image tile = Fill(TileSize, TileSize, [](int x, int y) -> Colour {
    const double cloud =
        0.6 * Noise(x / 4.0, y / 4.0, 4, 531) + 0.4 * Noise(x / 2.0, y / 2.0, 8, 532);
    return cloud > 0.62 ? 0x1A1034 : cloud > 0.50 ? 0x150C2C : 0x110926;
  });
  Set(tile, 3, 4, 0x4C4080);
  Set(tile, 12, 10, 0x382C64);
  Set(tile, 7, 13, 0x2C2254);
  return tile;
}

}  // namespace

void PaintLastStage(Sheet& sheet) {
  for (int variant = 0; variant < 3; ++variant) sheet.Put(235 + variant, LastFloor(variant));
  sheet.Put(238, Glyph());
  sheet.Put(239, LastStairs());
  sheet.Put(205, Void());
}

}  // namespace orvane::paint::tiles
