// What lies in the marsh: boards to walk on, and pools.
#include <algorithm>
#include <array>
#include <cmath>

#include "content/pictures/tiles/families.h"
#include "content/pictures/tiles/grounds.h"
#include "content/pictures/tiles/noise.h"
#include "content/pictures/tiles/palette.h"

namespace orvane::paint::tiles {
namespace {

// Boards laid close together that run on from tile to tile: the middle one is joined at the border,
// the others within, so that no two joints meet. Across a walk the same joints are sawn ends.
Image MarshPlanks() {
  struct Board {
    int Top;
    int Height;
    int Joint;  // the last pixel of a board
    int Tone;
  };
  constexpr std::array<Board, 3> boards{{{0, 5, 10, 4}, {5, 5, 15, 3}, {10, 6, 4, 4}}};
  Image tile(kTileSize, kTileSize);
  for (const Board& board : boards) {
    for (int x = 0; x < kTileSize; ++x) {
      const int into = (x - board.Joint + 2 * kTileSize - 1) % kTileSize;  // from the board's start
      for (int row = 0; row < board.Height; ++row) {
        const int y = board.Top + row;
        const bool seam = row == board.Height - 1;
        const double grain = Noise(x / 4.0, y * 1.3, 4, 351);
        int tone = row == 0 ? board.Tone + 1 : grain > 0.7 ? board.Tone - 1 : board.Tone;
        if (row == board.Height - 2) tone = board.Tone - 1;
        if (into == 0 && !seam) tone = board.Tone + 1;
        if (into == kTileSize - 1) tone = 2;
        Set(tile, x, y, seam ? (y == kTileSize - 1 ? kWood[1] : kWood[2]) : kWood[tone]);
      }
    }
    for (const int nail : {2, kTileSize - 4}) {
      Set(tile, (board.Joint + 1 + nail) % kTileSize, board.Top + 2, kWood[1]);
    }
  }
  return tile;
}

// How far a pixel lies inside the hummock of moss round the nearest corner of a pool's tile, or the
// ragged moss along its sides; negative in the water.
double HummockDepth(int x, int y) {
  const double dx = std::min(x + 0.5, kTileSize - 0.5 - x);
  const double dy = y < 9 ? y + 1.5 : kTileSize - 1.5 - y;
  const double rag = Noise(x / 2.0, y / 2.0, 8, 353) - 0.5;
  const double corner = 3.6 - std::hypot(dx, 1.1 * dy) + 1.6 * rag;
  const double side = std::max(-0.2 - dx, -0.7 - std::abs(dy - 0.5)) + 3.0 * rag;
  return std::max(corner, side);
}

// Hummocks and tussocks of sedge in dark water. Those that cross the border are there in both
// variants and on both sides: pools run together, and only a little is cut against grass or boards.
Image MarshPool(int variant) {
  const Key key = {{'h', kMarsh[4]}, {'m', kMarsh[2]}, {'k', kMarsh[1]}, {'d', kPool[0]},
                   {'b', kWood[3]},  {'l', kLeaf[4]},  {'n', kLeaf[5]},  {'g', kPool[4]},
                   {'p', 0xF8B0D0},  {'w', 0xFCF8E0},  {'q', 0xC86C98}};
  const Image moss = MarshTile(0);
  Image wide = Tiled(Fill(kTileSize, kTileSize,
                          [&](int x, int y) {
                            const double depth = HummockDepth(x, y);
                            if (depth > 2.2) return moss.At(x, y);
                            const double below = HummockDepth(x, (y + 1) % kTileSize);
                            if (depth > 0)
                              return below <= 0 ? kMarsh[1] : kMarsh[(x + y) % 3 == 0 ? 4 : 2];
                            if (HummockDepth(x, (y + kTileSize - 1) % kTileSize) > 0)
                              return kPool[0];
                            const double ripple = Noise(x / 4.0, y / 2.0, 8, 335);
                            return kPool[ripple > 0.80 ? 3 : ripple > 0.36 ? 2 : 1];
                          }),
                     3 * kTileSize, 3 * kTileSize);
  const auto large = [&](int x, int y) {
    Stamp(wide, x, y, {"..h.h..", ".hmhmh.", "hmhmhmk", "mmmkmmk", "kkmkkkk", "dkkkkdd", ".dddd.."},
          key);
  };
  const auto small = [&](int x, int y) {
    Stamp(wide, x, y, {".h.h.", "hmhmk", "mmkmk", "dkkkd", ".ddd."}, key);
  };
  for (int down = 0; down < 3 * kTileSize; down += kTileSize) {
    for (int across = 0; across < 3 * kTileSize; across += kTileSize) {
      small(across + 9, down + 12 - kTileSize);
      large(across + 13 - kTileSize, down + 5);
    }
  }
  Image tile = Cut(wide, kTileSize, kTileSize);
  if (variant == 0) {
    Stamp(tile, 5, 6, {".nn.", "nl.l", ".lll"}, key);
    Stamp(tile, 9, 10, {"gg"}, key);
  } else {
    Stamp(tile, 6, 2,
          {".b..b", ".b..b", ".bl.l", "l.l.l", "l.lll", ".lll.", ".lll.", "..ll.", "dddddd"}, key);
    Stamp(tile, 4, 9, {".p.", "pwp", ".q."}, key);
  }
  return tile;
}

}  // namespace

void PaintMarsh(Sheet& sheet) {
  sheet.Put(170, MarshPlanks());
  sheet.Put(50, MarshPool(0));
  sheet.Put(51, MarshPool(1));
}

}  // namespace orvane::paint::tiles
