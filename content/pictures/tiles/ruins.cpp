// Ruined walls, pillar and statue.
#include <cmath>

#include "content/pictures/tiles/families.h"
#include "content/pictures/tiles/grounds.h"
#include "content/pictures/tiles/noise.h"
#include "content/pictures/tiles/palette.h"
#include "content/pictures/tiles/rockface.h"

namespace orvane::paint::tiles {
namespace {

Colour Top(int x, int y) {
  const double moss = Noise(x / 4.0, y / 3.0, 0, 495);
  if (moss > 0.74) return moss > 0.84 ? 0x84A058 : 0x6C8850;
  if (Noise(x / 2.0, y / 2.0, 0, 498) > 0.80) return kStone[1];
  return Noise(x / 3.0, y / 3.0, 0, 497) > 0.42 ? kStone[3] : kStone[2];
}

// A square of ruined wall around a cell of paving. Each wall shows its top, and those that look
// toward the viewer their front.
Image Walls() {
  Image walls = Tiled(PavingTile(0), 48, 48);
  const auto slab = [&](int left, int top, int width, int depth, int front) {
    for (int y = top; y < top + depth + front; ++y) {
      for (int x = left; x < left + width; ++x) {
        Colour colour = 0;
        if (y < top + depth) {
          const bool rim = y == top || x == left;
          const bool far_rim = x == left + width - 1;
          colour = rim ? kStone[4] : far_rim ? kStone[1] : Top(x, y);
        } else {
          colour = BlockColour(x, y - top - depth);
          if (y == top + depth) colour = kStone[0];
        }
        Set(walls, x, y, colour);
      }
    }
  };
  slab(2, 1, 44, 6, 9);
  slab(2, 7, 9, 34, 0);
  slab(37, 7, 9, 34, 0);
  Box(walls, 11, 16, 2, 17, kStone[1]);
  slab(2, 33, 44, 6, 8);
  Box(walls, 2, 47, 44, 1, kStone[0]);
  return walls;
}

Image Pillar() {
  Image tile = PavingTile(0);
  CastShadow(tile, 10, 13, 6, 2.4, 0.6);
  Stamp(tile, 2, 0,
        {".kkkkkkkkkk.", "klhhhhhhmmdk", "klhhhhhmmmdk", "kkkkkkkkkkkk", ".klhlmmddsk.",
         ".klhlmmddsk.", ".klhgmmddsk.", ".klhlgmddsk.", ".klhlmmddsk.", ".klhlmmddsk.",
         ".klhlmgddsk.", ".klhlmmddsk.", "kkkkkkkkkkkk", "klhhhhhmmmdk", "kddddddsssdk",
         ".kkkkkkkkkk."},
        {{'k', kStone[0]},
         {'l', kStone[4]},
         {'h', kStone[5]},
         {'m', kStone[3]},
         {'d', kStone[2]},
         {'s', kStone[1]},
         {'g', kLeaf[3]}});
  return tile;
}

// A knight of stone who rests both hands on his sword.
Image Statue() {
  Image statue = Tiled(PavingTile(0), 16, 32);
  CastShadow(statue, 10, 29, 8, 3, 0.65);
  Stamp(statue, 0, 1,
        {".......kk.......", "......khhk......", ".....khlmdk.....", ".....khlmdk.....",
         ".....kkkkkk.....", ".....klkkdk.....", "....kkllmdkk....", "...khhkmmkmdk...",
         "..khhlmkkmmddk..", "..khlkllmmkddk..", "..khlkhlmdkmdk..", "..kllkhlmdkmdk..",
         "..klmkkyykkmdk..", "...kkhyYYydkk...", "...khlkyykmdk...", "...khlkhdkmdk...",
         "...khlkhdkmdk...", "...klmkhdkmdk...", "...klmkhdkddk...", "..kkkkkkkkkkkk..",
         ".khhhhhhllmmmdk.", ".kllllmmmmmdddk.", ".kkkkkkkkkkkkkk.", "..khllmmmmmddk..",
         "..khlkkkkkkddk..", "..khlkllmmkddk..", "..khlkkkkkkddk..", "..khllmmmmmddk..",
         ".khhhhlllmmmmdk.", ".kkkkkkkkkkkkkk."},
        {{'k', kStone[0]},
         {'h', kStone[5]},
         {'l', kStone[4]},
         {'m', kStone[3]},
         {'d', kStone[2]},
         {'y', kGold[2]},
         {'Y', kGold[3]}});
  return statue;
}

}  // namespace

void PaintRuins(Sheet& sheet) {
  const Image walls = Walls();
  const int codes[] = {82, 83, 84, 112, 0, 114, 142, 143, 144};
  for (int i = 0; i < 9; ++i) {
    if (codes[i] != 0) sheet.Put(codes[i], walls, i % 3 * kTileSize, i / 3 * kTileSize);
  }
  sheet.Put(200, Pillar());
  const Image statue = Statue();
  sheet.PutBlock(169, statue);
}

}  // namespace orvane::paint::tiles
