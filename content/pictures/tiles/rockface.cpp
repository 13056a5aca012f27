#include "content/pictures/tiles/rockface.h"

#include <array>
#include <cmath>

#include "content/pictures/tiles/noise.h"

namespace orvane::paint::tiles {

double FaceTone(int x, int y, int seed) {
  const Facet facet = FacetAt((x + 0.5) * 3 / TileSize, (y + 0.5) * 2 / TileSize, 3, 2, seed);
  const double slant = facet.dx * 1.1 + facet.dy * 0.9;
  double tone = 3.7 - 3.4 * slant + 1.2 * (facet.chance - 0.5);
  if (facet.edge < 0.10) tone = slant > 0 ? 0.6 : 1.6;
  if (facet.edge >= 0.10 && facet.edge < 0.26 && slant < -0.1) tone += 1.2;
  return tone;
}

double PeakTone(int x, int y) {
  // Two peaks in a tile, the later one nearer; each hides what stands behind it.
  struct Peak {
    int x;
    int y;
    double steep;
    int seed;
  };
  constexpr std::array<Peak, 2> Peaks{{{4, 1, 1.25, 1}, {12, 8, 1.15, 2}}};
  double tone = 1;
  int nearest = -100;
  for (int row = -2; row <= 1; ++row) {
    for (const Peak& peak : Peaks) {
      for (int column = -2; column <= 2; ++column) {
        const int px = peak.x + column * TileSize;
        const int py = peak.y + row * TileSize;
        const int down = (y % TileSize) - py;
        const int aside = (x % TileSize) - px;
        const double ragged = 1.6 * (Hash(aside, peak.seed, 431) - 0.5);
        const double under = down - std::abs(aside) * peak.steep + ragged;
        if (under < 0 || down > 20 || py < nearest) continue;
        nearest = py;
        // The ridge runs down in a zigzag; left of it lies light, right of it shade.
        const int ridge = (down / 3) % 2 == 0 ? 0 : 1;
        const bool lit = aside < ridge;
        tone = lit ? 5.6 - 0.17 * down : 2.9 - 0.10 * down;
        if (lit && (aside + 2 * down + 40) % 7 < 2 && down > 3) tone -= 1.1;
        if (!lit && (aside * 2 - down + 80) % 9 < 2 && down > 4) tone += 0.9;
        if (under < 1.0) tone = lit ? 6.6 : 1.0;
      }
    }
  }
  return tone;
}

}  // namespace orvane::paint::tiles
