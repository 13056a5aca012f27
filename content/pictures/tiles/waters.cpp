// Lakes, sea and lava with their shores.
#include <algorithm>
#include <cmath>
#include <numbers>

#include "content/pictures/tiles/families.h"
#include "content/pictures/tiles/grounds.h"
#include "content/pictures/tiles/noise.h"
#include "content/pictures/tiles/palette.h"
#include "content/pictures/tiles/patch.h"

namespace orvane::paint::tiles {
namespace {

// A lake: an earth bank is seen on the far shore, foam runs along the waterline.
Colour Lake(const PatchSpot& spot) {
  static const Image grass = GrassTile(0);
  static const Image water = WaterTile(0);
  const bool far_shore = spot.FacingY < -0.4;
  const double bank = far_shore ? 3.5 : 1.0;
  if (spot.Depth > bank) {
    const double in = spot.Depth - bank;
    if (in < 1.0) return kWater[6];
    if (in < 2.2) return far_shore ? kWater[1] : kWater[4];
    if (in < 4.0 && far_shore) return kWater[1];
    if (in < 3.4 && !far_shore) return kWater[3];
    return Repeated(water, spot.X, spot.Y);
  }
  if (spot.Depth > 0) {
    if (!far_shore) return kRock[2];
    const double grain = Noise(spot.X / 2.0, spot.Y / 2.0, 8, 301);
    return kRock[spot.Depth > 2.5 ? 1 : grain < 0.4 ? 2 : grain < 0.7 ? 3 : 4];
  }
  if (spot.Depth > -1.2) return far_shore ? kGrass[6] : kGrass[2];
  if (spot.Depth > -2.2) return far_shore ? kGrass[5] : kGrass[3];
  return Repeated(grass, spot.X, spot.Y);
}

// The sea runs out on sand: wet sand, foam, pale shallow, deep.
Colour Sea(const PatchSpot& spot) {
  static const Image sand = SandTile(0);
  static const Image water = WaterTile(0);
  if (spot.Depth > 6.5) return Repeated(water, spot.X, spot.Y);
  if (spot.Depth > 4.4) return kWater[3];
  if (spot.Depth > 2.4) return kWater[4];
  if (spot.Depth > 1.4) return kWater[5];
  if (spot.Depth > 0) return kWater[6];
  if (spot.Depth > -2.0) return kSand[1];
  if (spot.Depth > -3.2) return kSand[2];
  return Repeated(sand, spot.X, spot.Y);
}

// Lava lies deep between crusts of dark rock that glow at the rim.
Colour MoltenRock(const PatchSpot& spot) {
  static const Image waste = WasteTile(0);
  static const Image lava = LavaTile();
  const bool far_shore = spot.FacingY < -0.4;
  const double bank = far_shore ? 4.0 : 1.6;
  if (spot.Depth > bank) {
    const double in = spot.Depth - bank;
    if (in < 1.0) return kLava[5];
    if (in < 2.0) return kLava[4];
    return Repeated(lava, spot.X, spot.Y);
  }
  if (spot.Depth > 0) {
    const double grain = Noise(spot.X / 2.0, spot.Y / 2.0, 8, 311);
    return kDark[spot.Depth > bank - 1 ? 1 : grain < 0.4 ? 2 : 3];
  }
  if (spot.Depth > -1.2) return far_shore ? kWaste[5] : kWaste[0];
  if (spot.Depth > -2.2) return far_shore ? kWaste[4] : kWaste[1];
  return Repeated(waste, spot.X, spot.Y);
}

// Flat stones on a shoal, near enough to each other to step across in any direction. None reaches
// the border, so that stones side by side stay stones; between them the shoal shines through.
Image SteppingStones() {
  const Image water = WaterTile(0);
  Image tile = Fill(kTileSize, kTileSize, [&](int x, int y) {
    const double stone =
        std::min({std::hypot(x - 5.2, y - 4.6) - 4.6, std::hypot(x - 10.6, y - 11.6) - 4,
                  std::hypot(x - 12.6, y - 5) - 2, std::hypot(x - 2.8, y - 12) - 2});
    const double wave = 3 * (Noise(x / 4.0, y / 2.0, 4, 331) - 0.5);
    if (stone + wave > 2.4) return water.At(x, y);
    return kWater[stone + wave > 1.2 ? 3 : 4];
  });
  const Key key = {{'l', kGravel[5]}, {'m', kGravel[4]}, {'n', kGravel[3]}, {'d', kGravel[1]},
                   {'s', kWater[2]},  {'f', kWater[6]},  {'g', kMarsh[4]}};
  Stamp(tile, 1, 1,
        {"..lllll..", ".lllllmm.", "lllmmmmmn", "llmmmmmnn", "lmmmmmnnn", "nnmmnnndd", "fddddddds",
         ".ffssss.."},
        key);
  Stamp(tile, 7, 9, {"..llll..", ".lllmmn.", "llmmmmnn", "nmmmnnnd", "fnddddds", ".ffsss.."}, key);
  Stamp(tile, 11, 3, {".ll.", "lmmn", "nmnd", "fdds"}, key);
  Stamp(tile, 1, 10, {".ll.", "lmmn", "nnnd", "fdds"}, key);
  return tile;
}

Image Waterfall() {
  // Every column falls at its own beat; the beats fit the tile, so falls of any height join.
  return Fill(kTileSize, kTileSize, [](int x, int y) {
    const double turn = 2 * std::numbers::pi * y / kTileSize;
    const double strand = 0.5 * Noise(x / 2.0, 0.5, 8, 325) + 0.5 * Hash(x, 3, 325);
    const double beat = std::sin(turn + 6.3 * Hash(x / 3, 1, 323)) +
                        0.7 * std::sin(2 * turn + 6.3 * Hash(x, 2, 323));
    const double fall = strand + 0.13 * beat;
    return kWater[fall < 0.24 ? 2 : fall < 0.44 ? 3 : fall < 0.62 ? 4 : fall < 0.80 ? 5 : 6];
  });
}

}  // namespace

void PaintWaters(Sheet& sheet) {
  PaintPatch(
      sheet,
      {.First = 151, .Inner = {3, 4, 5, 6}, .Inset = 3, .Radius = 8, .Waver = 1.5, .Seed = 221},
      Lake);
  PaintPatch(
      sheet,
      {.First = 154, .Inner = {37, 38, 39, 40}, .Inset = 4, .Radius = 8, .Waver = 1.6, .Seed = 223},
      Sea);
  PaintPatch(sheet, {.First = 171, .Inset = 3, .Radius = 7, .Waver = 1.6, .Seed = 225}, MoltenRock);
  sheet.Put(1, WaterTile(1));
  sheet.Put(2, WaterTile(2));
  sheet.Put(30, SteppingStones());
  sheet.Put(229, Waterfall());
}

}  // namespace orvane::paint::tiles
