// Lakes, sea and lava with their shores.
#include <algorithm>
#include <array>
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
  const bool far_shore = spot.facing_y < -0.4;
  const double bank = far_shore ? 3.5 : 1.0;
  if (spot.depth > bank) {
    const double in = spot.depth - bank;
    if (in < 1.0) return Water[6];
    if (in < 2.2) return far_shore ? Water[1] : Water[4];
    if (in < 4.0 && far_shore) return Water[1];
    if (in < 3.4 && !far_shore) return Water[3];
    return Repeated(water, spot.x, spot.y);
  }
  if (spot.depth > 0) {
    if (!far_shore) return Rock[2];
    const double grain = Noise(spot.x / 2.0, spot.y / 2.0, 8, 301);
    return Rock[spot.depth > 2.5 ? 1 : grain < 0.4 ? 2 : grain < 0.7 ? 3 : 4];
  }
  if (spot.depth > -1.2) return far_shore ? Grass[6] : Grass[2];
  if (spot.depth > -2.2) return far_shore ? Grass[5] : Grass[3];
  return Repeated(grass, spot.x, spot.y);
}

// The sea runs out on sand: wet sand, foam, pale shallow, deep.
Colour Sea(const PatchSpot& spot) {
  static const Image sand = SandTile(0);
  static const Image water = WaterTile(0);
  if (spot.depth > 6.5) return Repeated(water, spot.x, spot.y);
  if (spot.depth > 4.4) return Water[3];
  if (spot.depth > 2.4) return Water[4];
  if (spot.depth > 1.4) return Water[5];
  if (spot.depth > 0) return Water[6];
  if (spot.depth > -2.0) return Sand[1];
  if (spot.depth > -3.2) return Sand[2];
  return Repeated(sand, spot.x, spot.y);
}

// Lava lies deep between crusts of dark rock that glow at the rim.
Colour MoltenRock(const PatchSpot& spot) {
  static const Image waste = WasteTile(0);
  static const Image lava = LavaTile();
  const bool far_shore = spot.facing_y < -0.4;
  const double bank = far_shore ? 4.0 : 1.6;
  if (spot.depth > bank) {
    const double in = spot.depth - bank;
    if (in < 1.0) return Lava[5];
    if (in < 2.0) return Lava[4];
    return Repeated(lava, spot.x, spot.y);
  }
  if (spot.depth > 0) {
    const double grain = Noise(spot.x / 2.0, spot.y / 2.0, 8, 311);
    return Dark[spot.depth > bank - 1 ? 1 : grain < 0.4 ? 2 : 3];
  }
  if (spot.depth > -1.2) return far_shore ? Waste[5] : Waste[0];
  if (spot.depth > -2.2) return far_shore ? Waste[4] : Waste[1];
  return Repeated(waste, spot.x, spot.y);
}

// Flat stones on a shoal, near enough to each other to step across in any direction. None reaches
// the border, so that stones side by side stay stones; between them the shoal shines through.
Image SteppingStones() {
  const Image water = WaterTile(0);
  Image tile = Fill(TileSize, TileSize, [&](int x, int y) {
    const double stone =
        std::min({std::hypot(x - 5.2, y - 4.6) - 4.6, std::hypot(x - 10.6, y - 11.6) - 4,
                  std::hypot(x - 12.6, y - 5) - 2, std::hypot(x - 2.8, y - 12) - 2});
    const double wave = 3 * (Noise(x / 4.0, y / 2.0, 4, 331) - 0.5);
    if (stone + wave > 2.4) return water.At(x, y);
    return Water[stone + wave > 1.2 ? 3 : 4];
  });
  const Key key = {{'l', Gravel[5]}, {'m', Gravel[4]}, {'n', Gravel[3]}, {'d', Gravel[1]},
                   {'s', Water[2]},  {'f', Water[6]},  {'g', Marsh[4]}};
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
  return Fill(TileSize, TileSize, [](int x, int y) {
    const double turn = 2 * std::numbers::pi * y / TileSize;
    const double strand = 0.5 * Noise(x / 2.0, 0.5, 8, 325) + 0.5 * Hash(x, 3, 325);
    const double beat = std::sin(turn + 6.3 * Hash(x / 3, 1, 323)) +
                        0.7 * std::sin(2 * turn + 6.3 * Hash(x, 2, 323));
    const double fall = strand + 0.13 * beat;
    return Water[fall < 0.24 ? 2 : fall < 0.44 ? 3 : fall < 0.62 ? 4 : fall < 0.80 ? 5 : 6];
  });
}

// Boards laid close together, of three widths and two woods; they look the same whichever way the
// walk goes.
Image MarshPlanks() {
  struct Board {
    int top;
    int height;
    int left;  // where it begins; it ends as far from the other side
    int tone;
  };
  constexpr std::array<Board, 3> boards{{{0, 6, 0, 4}, {6, 4, 1, 3}, {10, 6, 0, 4}}};
  Image tile = MarshTile(0);
  for (const Board& board : boards) {
    const int right = TileSize - 1 - board.left;
    for (int x = board.left; x <= right; ++x) {
      const bool end = x == board.left || x == right;
      for (int row = 0; row < board.height; ++row) {
        const int y = board.top + row;
        const bool grain = Noise(x / 5.0, y * 0.9, 0, 351) > 0.66;
        const int tone = row == 0                  ? board.tone + 1
                         : row == board.height - 1 ? 0
                         : row == board.height - 2 ? board.tone - 1
                         : grain                   ? board.tone - 1
                                                   : board.tone;
        Set(tile, x, y, row == board.height - 1 ? Marsh[0] : Wood[end ? std::min(tone, 2) : tone]);
      }
    }
    for (const int x : {board.left + 2, right - 2}) Set(tile, x, board.top + 1, Wood[1]);
  }
  return tile;
}

// How deep (x, y) lies in the water of a pool, in pixels: a pond with ragged shores that runs over
// into the pools beside it by a channel in the middle of each side, so that hummocks stay where
// four pools meet.
double PoolDepth(int x, int y, int variant) {
  const double inward = std::min(std::min(x, TileSize - 1 - x), std::min(y, TileSize - 1 - y));
  const double rag = Noise(x / 2.0, y / 2.0, 8, inward < 2 ? 341 : 341 + variant) - 0.5;
  const double dx = std::abs(x - 7.4);
  const double dy = std::abs(y - 7.6);
  const double pond = 7.3 - std::pow(std::pow(dx, 2.6) + std::pow(dy, 2.6), 1 / 2.6);
  const double across = 3.6 - std::abs(y - 8.6);
  const double down = 3.6 - std::abs(x - 6.4);
  return std::max({pond, across, down}) + 3.0 * rag;
}

Image MarshPool(int variant) {
  const Image marsh = MarshTile(0);
  Image tile = Fill(TileSize, TileSize, [&](int x, int y) {
    const double depth = PoolDepth(x, y, variant);
    if (depth < -1.2) return marsh.At(x, y);
    if (depth < 0) return PoolDepth(x, y + 1, variant) >= 0 ? Marsh[0] : Marsh[1];
    if (PoolDepth(x, y - 1, variant) < 0) return Pool[0];
    if (PoolDepth(x, y + 1, variant) < 0) return Pool[3];
    const double ripple = Noise(x / 4.0, y / 1.6, 4, 335 + variant);
    return Pool[ripple > 0.80 ? 3 : ripple > 0.36 ? 2 : 1];
  });
  if (variant == 0) {
    Stamp(tile, 4, 2,
          {".b...b.", ".b.b.b.", ".lbb.l.", "lllb.ll", ".l.l.l.", ".l.lll.", "..ll.l.", "..llll.",
           ".dddddd"},
          {{'b', Wood[2]}, {'l', Leaf[4]}, {'d', Pool[1]}});
  } else {
    Stamp(tile, 2, 8, {".llll.", "lll.ml", "mmmmmm", ".mmmm."}, {{'l', Leaf[5]}, {'m', Leaf[4]}});
    Stamp(tile, 9, 4, {".ll.", "l.ml", "mmmm"}, {{'l', Leaf[5]}, {'m', Leaf[4]}});
    Stamp(tile, 10, 9, {".p.", "pwp", ".q."}, {{'p', 0xF8B0D0}, {'w', 0xFCF8E0}, {'q', 0xC86C98}});
  }
  return tile;
}

}  // namespace

void PaintWaters(Sheet& sheet) {
  PaintPatch(
      sheet,
      {.first = 151, .inner = {3, 4, 5, 6}, .inset = 3, .radius = 8, .waver = 1.5, .seed = 221},
      Lake);
  PaintPatch(
      sheet,
      {.first = 154, .inner = {37, 38, 39, 40}, .inset = 4, .radius = 8, .waver = 1.6, .seed = 223},
      Sea);
  PaintPatch(sheet, {.first = 171, .inset = 3, .radius = 7, .waver = 1.6, .seed = 225}, MoltenRock);
  sheet.Put(1, WaterTile(1));
  sheet.Put(2, WaterTile(2));
  sheet.Put(30, SteppingStones());
  sheet.Put(229, Waterfall());
  sheet.Put(170, MarshPlanks());
  sheet.Put(50, MarshPool(0));
  sheet.Put(51, MarshPool(1));
}

}  // namespace orvane::paint::tiles
