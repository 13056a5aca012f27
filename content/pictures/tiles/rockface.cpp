#include "content/pictures/tiles/rockface.h"

#include <array>
#include <cmath>

#include "content/pictures/tiles/noise.h"
#include "content/pictures/tiles/palette.h"

namespace orvane::paint::tiles {
namespace {

constexpr int kColumns = 4;

int Rest(int value) {
  const int rest = value % kTileSize;
  return rest < 0 ? rest + kTileSize : rest;
}

// How far the left side of a column leans over the height of a tile, in pixels a row.
double Lean(int column, int stratum) {
  return (Hash(column % kColumns, stratum, 1) - 0.5) * 0.3;
}

}  // namespace

double FaceTone(int x, int y, int stratum) {
  constexpr std::array<std::array<int, kColumns + 1>, 4> Edges{
      {{0, 5, 9, 12, 16}, {0, 4, 10, 13, 16}, {0, 6, 9, 14, 16}, {0, 3, 8, 12, 16}}};
  const auto& edges = Edges[static_cast<size_t>(stratum % 4)];
  const double px = Rest(x) + 0.5;
  const double py = Rest(y) + 0.5;
  for (int k = -1; k <= kColumns; ++k) {
    const int column = (k + kColumns) % kColumns;
    const double shift = k < 0 ? -kTileSize : k >= kColumns ? kTileSize : 0;
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

double SummitTone(int x, int y) {
  const double bent_x = x + 0.5 + 3 * (Noise(x / 4.0, y / 4.0, 4, 10) - 0.5);
  const double bent_y = y + 0.5 + 3 * (Noise(x / 4.0, y / 4.0, 4, 11) - 0.5);
  const Facet block = FacetAt(bent_x * 3 / kTileSize, bent_y * 2 / kTileSize, 3, 2, 749);
  const double slant = block.Dx + block.Dy;
  if (block.Edge < 0.08) return 0.8;
  if (block.Edge < 0.20 && slant < -0.05) return 5.8;
  const double grain = Noise(x / 2.0, y / 2.0, 8, 668) - 0.5;
  return 3.2 - 2.4 * slant + 1.8 * (block.Chance - 0.5) + 1.2 * grain;
}

double CaveTopTone(int x, int y) {
  const Facet facet = FacetAt((x + 0.5) * 2 / kTileSize, (y + 0.5) * 2 / kTileSize, 2, 2, 613);
  if (facet.Edge < 0.10) return 0.4;
  const double slant = facet.Dx + facet.Dy;
  if (facet.Edge < 0.24 && slant < -0.1) return 2.4;
  return slant < -0.25 ? 1.9 : slant < 0.3 ? 1.4 : 0.8;
}

// Dressed blocks of a wall's front: `down` from its top.
Colour BlockColour(int x, int down) {
  const int course = down / 4;
  const int along = (x + course % 2 * 4) % 8;
  if (down % 4 == 3 || along == 7) return kStone[0];
  const bool mossy = Noise(x / 3.0, down / 3.0, 0, 491) > 0.70;
  if (mossy) return down % 4 == 0 ? 0x6C8850 : 0x4C6840;
  if (down % 4 == 0 || along == 0) return kStone[3];
  return kStone[Hash(x / 8, course, 493) > 0.5 ? 2 : 1];
}

}  // namespace orvane::paint::tiles
