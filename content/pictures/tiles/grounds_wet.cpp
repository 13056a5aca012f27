// Water, sandbank and lava.
#include <cmath>
#include <numbers>

#include "content/pictures/tiles/grounds.h"
#include "content/pictures/tiles/noise.h"
#include "content/pictures/tiles/palette.h"

namespace orvane::paint::tiles {
namespace {

// Crossing swells that repeat every tile.
double Swell(int x, int y) {
  const double step = 2 * std::numbers::pi / kTileSize;
  const double bend = 1.6 * std::sin(step * x) + 0.8 * std::sin(step * 2 * x + 1);
  return std::sin(step * 2 * y + bend) + 0.6 * std::sin(step * 4 * y + step * x + 2) +
         1.2 * (Noise(x / 4.0, y / 2.0, 8, 91) - 0.5);
}

}  // namespace

Image WaterTile(int variant) {
  Image tile = Fill(kTileSize, kTileSize, [](int x, int y) {
    const double swell = Swell(x, y);
    return kWater[swell > 0.95 ? 3 : swell < -1.0 ? 1 : 2];
  });
  const Key key = {{'l', kWater[4]}, {'b', kWater[5]}, {'w', kWater[6]}};
  if (variant == 1) Stamp(tile, 4, 6, {"..bb....", "ll..llb."}, key);
  if (variant == 2) {
    Stamp(tile, 8, 3, {".bb..", "l..ll"}, key);
    Stamp(tile, 2, 11, {".lbl.", "l...l"}, key);
  }
  return tile;
}

// A bank of sand with foam round it: water takes its corners, so that it
// ends a beach or a row of stones in a round shore.
Image SandbankTile() {
  const Image sand = SandTile(0);
  return Fill(kTileSize, kTileSize, [&](int x, int y) {
    const double dx = std::abs(x - 7.5);
    const double dy = std::abs(y - 7.5);
    const double rag = 1.6 * (Noise(x / 3.0, y / 3.0, 0, 97) - 0.5);
    const double depth = std::pow(std::pow(dx, 2.4) + std::pow(dy, 2.4), 1 / 2.4) - 7.9 + rag;
    if (depth > 2.4) return kWater[4];
    if (depth > 1.2) return kWater[5];
    if (depth > 0) return kWater[6];
    return depth > -1.0 ? kSand[2] : sand.At(x, y);
  });
}

// Plates of crust that float on the melt, which glows between them.
Image LavaTile() {
  Image tile = Fill(kTileSize, kTileSize, [](int x, int y) {
    const double bend = 2.6 * (Noise(x / 2.0, y / 2.0, 8, 93) - 0.5);
    const Facet facet = FacetAt((x + 0.5 + bend) / 8, (y + 0.5 - bend) / 8, 2, 2, 99);
    if (facet.Edge < 0.06) return kLava[4];
    if (facet.Edge < 0.13) return kLava[3];
    if (facet.Edge < (facet.Chance < 0.4 ? 0.36 : 0.20)) return kLava[2];
    const bool lit = facet.Dx + facet.Dy < -0.1;
    return facet.Edge < 0.32 || lit ? kLava[1] : kLava[0];
  });
  return tile;
}

}  // namespace orvane::paint::tiles
