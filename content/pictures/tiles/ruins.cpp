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
  if (Noise(x / 2.0, y / 2.0, 0, 498) > 0.80) return Stone[1];
  return Noise(x / 3.0, y / 3.0, 0, 497) > 0.42 ? Stone[3] : Stone[2];
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
          colour = rim ? Stone[4] : far_rim ? Stone[1] : Top(x, y);
        } else {
          colour = BlockColour(x, y - top - depth);
          if (y == top + depth) colour = Stone[0];
        }
        Set(walls, x, y, colour);
      }
    }
  };
  slab(2, 1, 44, 6, 9);
  slab(2, 7, 9, 34, 0);
  slab(37, 7, 9, 34, 0);
  Box(walls, 11, 16, 2, 17, Stone[1]);
  slab(2, 33, 44, 6, 8);
  Box(walls, 2, 47, 44, 1, Stone[0]);
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
        {{'k', Stone[0]},
         {'l', Stone[4]},
         {'h', Stone[5]},
         {'m', Stone[3]},
         {'d', Stone[2]},
         {'s', Stone[1]},
         {'g', Leaf[3]}});
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
        {{'k', Stone[0]},
         {'h', Stone[5]},
         {'l', Stone[4]},
         {'m', Stone[3]},
         {'d', Stone[2]},
         {'y', Gold[2]},
         {'Y', Gold[3]}});
  return statue;
}

}  // namespace

void PaintRuins(Sheet& sheet) {
  const Image walls = Walls();
  const int codes[] = {82, 83, 84, 112, 0, 114, 142, 143, 144};
  for (int i = 0; i < 9; ++i) {
    if (codes[i] != 0) sheet.Put(codes[i], walls, i % 3 * TileSize, i / 3 * TileSize);
  }
  sheet.Put(200, Pillar());
  const Image statue = Statue();
  sheet.PutBlock(169, statue);
}

}  // namespace orvane::paint::tiles
