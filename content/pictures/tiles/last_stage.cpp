// The last stage: slabs of marble over a starry void.
#include <algorithm>
#include <cmath>

#include "content/pictures/tiles/families.h"
#include "content/pictures/tiles/noise.h"
#include "content/pictures/tiles/palette.h"

namespace orvane::paint::tiles {
namespace {

// Polished slabs with a slanting sheen and a vein; the variants are four dark stones for rims and
// bridges, or inlaid with a square and a golden boss.
Image LastFloor(int variant) {
  return Fill(kTileSize, kTileSize, [&](int x, int y) -> Colour {
    if (variant == 1) {
      const int in_x = x % 8;
      const int in_y = y % 8;
      if (in_x == 7 || in_y == 7) return 0x7C749A;
      if (in_x == 0 || in_y == 0) return 0xD0CADE;
      const bool sheen = (x / 8 + y / 8) % 2 == 0;
      return in_x + in_y < 6 ? (sheen ? 0xBCB4CC : 0xB2AAC6) : (sheen ? 0xAEA6C2 : 0xA69EBC);
    }
    if (x == 15 || y == 15) return 0xA49CB6;
    if (x == 0 || y == 0) return 0xF2EEF6;
    if (variant == 2) {
      const int inset = std::min(std::min(x, 15 - x), std::min(y, 15 - y));
      if (inset == 2) return x + y < 15 ? 0xA89EBE : 0xF0ECF6;
      if (inset == 3) return x + y < 15 ? 0xC2BAD2 : 0xD8D2E2;
      const double boss = std::abs(x - 7.5) + std::abs(y - 7.5);
      if (boss < 3.6) {
        if (boss > 2.6) return kGold[1];
        return x + y < 14 ? kGold[4] : x + y < 16 ? kGold[3] : kGold[2];
      }
    } else {
      const double vein = x - 0.7 * y - 2.5 + 3 * (Noise(x / 4.0, y / 4.0, 0, 534) - 0.5);
      if (std::abs(vein) < 0.6) return 0xBEB6CE;
      if (std::abs(vein - 1) < 0.5) return 0xE4DFEA;
    }
    return x + y < 13 ? 0xDCD7E4 : x + y < 20 ? kMarble[3] : 0xC2BCCE;
  });
}

Image Glyph() {
  Image tile = LastFloor(0);
  Stamp(tile, 2, 2,
        {"...gggggg...", "..g......g..", ".g..gGGg..g.", "g..g.gg.g..g", "g.g.gGGg.g.g",
         "gGGgG..GgGGg", "gGGgG..GgGGg", "g.g.gGGg.g.g", "g..g.gg.g..g", ".g..gGGg..g.",
         "..g......g..", "...gggggg..."},
        {{'g', kGold[2]}, {'G', kGold[3]}});
  return tile;
}

Image LastStairs() {
  return Fill(kTileSize, kTileSize, [](int x, int y) -> Colour {
    if (x == 0 || x == 15) return kGold[2];
    const int step = y % 4;
    return kMarble[step == 0 ? 5 : step == 3 ? 1 : step == 2 ? 3 : 4];
  });
}

// Faint stars only: a bright one would come back in every tile and show the grid.
Image Void() {
  Image tile = Fill(kTileSize, kTileSize, [](int x, int y) -> Colour {
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
