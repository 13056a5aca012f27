#include "content/pictures/tiles/rockface.h"

#include <array>
#include <cmath>

#include "content/pictures/tiles/noise.h"

namespace orvane::paint::tiles {
namespace {

constexpr int Columns = 4;

int Rest(int value) {
  const int rest = value % TileSize;
  return rest < 0 ? rest + TileSize : rest;
}

// How far the left side of a column leans over the height of a tile, in pixels a row.
double Lean(int column, int stratum) {
  return (Hash(column % Columns, stratum, 1) - 0.5) * 0.3;
}

}  // namespace

double FaceTone(int x, int y, int stratum) {
  constexpr std::array<std::array<int, Columns + 1>, 4> Edges{
      {{0, 5, 9, 12, 16}, {0, 4, 10, 13, 16}, {0, 6, 9, 14, 16}, {0, 3, 8, 12, 16}}};
  const auto& edges = Edges[static_cast<size_t>(stratum % 4)];
  const double px = Rest(x) + 0.5;
  const double py = Rest(y) + 0.5;
  for (int k = -1; k <= Columns; ++k) {
    const int column = (k + Columns) % Columns;
    const double shift = k < 0 ? -TileSize : k >= Columns ? TileSize : 0;
    const auto at = static_cast<size_t>(column);
    const double left = edges[at] + shift + Lean(column, stratum) * (py - 8);
    const double right = edges[at + 1] + shift + Lean(column + 1, stratum) * (py - 8);
    if (px < left || px >= right) continue;
    // Each column is broken once, aslant; the lower part lies a little farther back.
    const double across = (px - left) / (right - left);
    const double broken =
        4 + 8 * Hash(column, stratum, 2) + (px - left) * (Hash(column, stratum, 4) - 0.35) * 1.2;
    const bool lower = py > broken;
    double tone = 5.0 - 3.3 * across + 1.6 * (Hash(column, stratum + (lower ? 9 : 0), 3) - 0.5);
    if (lower) tone -= 0.7;
    if (px - left < 1) tone += 0.9;
    if (right - px < 1) tone = 0.6;
    if (lower && py - broken < 1) {
      tone = 0.8;
    } else if (lower && py - broken < 2) {
      tone += 1.3;
    }
    return tone;
  }
  return 1;
}

double PeakTone(int x, int y) {
  // Two peaks in a tile, the later one nearer; each hides what stands behind it.
  struct Peak {
    int x;
    int y;
    double left;  // how fast its sides spread
    double right;
  };
  constexpr std::array<Peak, 2> Peaks{{{4, 0, 0.62, 0.62}, {12, 8, 0.62, 0.55}}};
  constexpr std::array<int, 20> Ridge{0, 0, 0, 1, 1, 0, 0, -1, -1, 0, 1, 1, 2, 1, 1, 0, 0, 1, 1, 1};
  double tone = 1;
  int nearest = -100;
  for (int row = -2; row <= 1; ++row) {
    for (const Peak& peak : Peaks) {
      for (int column = -2; column <= 2; ++column) {
        const int py = peak.y + row * TileSize;
        const int down = Rest(y) - py;
        const int aside = Rest(x) - peak.x - column * TileSize;
        if (down < 0 || down >= static_cast<int>(Ridge.size()) || py < nearest) continue;
        const double left = -down * peak.left - 0.4 - 0.8 * Hash(down, peak.x, 3);
        const double right = down * peak.right + 0.4 + 0.8 * Hash(down, peak.x, 4);
        if (aside < left || aside > right) continue;
        nearest = py;
        const int ridge = Ridge[static_cast<size_t>(down)];
        if (aside <= ridge) {
          // The lit side, with gullies that run down to the left.
          tone = 5.7 - 0.17 * down;
          const bool gully = (down * 2 + aside * 2 + 64) % 14 < 4;
          if (down > 5 && gully && aside < ridge - 2) tone -= 1.5;
          if (aside == ridge) tone += 0.9;
          if (down < 2) tone = 7;
        } else {
          tone = 2.6 - 0.08 * down;
          if (down > 5 && (down * 2 - aside * 2 + 64) % 14 < 3) tone += 1.0;
          if (aside > right - 1) tone -= 1;
        }
      }
    }
  }
  return tone;
}

double RoofTone(int x, int y) {
  const Facet facet = FacetAt((x + 0.5) * 2 / TileSize, (y + 0.5) * 2 / TileSize, 2, 2, 613);
  if (facet.edge < 0.10) return 0.4;
  const double slant = facet.dx + facet.dy;
  if (facet.edge < 0.24 && slant < -0.1) return 2.4;
  return slant < -0.25 ? 1.9 : slant < 0.3 ? 1.4 : 0.8;
}

}  // namespace orvane::paint::tiles
