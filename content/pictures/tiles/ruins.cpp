// Ruined walls, pillar, statue, the rock-cut shrine and the gate of the last book.
#include <cmath>

#include "content/pictures/tiles/families.h"
#include "content/pictures/tiles/grounds.h"
#include "content/pictures/tiles/noise.h"
#include "content/pictures/tiles/palette.h"
#include "content/pictures/tiles/rockface.h"

namespace orvane::paint::tiles {
namespace {

// Dressed blocks of a wall's front: `down` from its top.
Colour Block(int x, int down) {
  const int course = down / 4;
  const int along = (x + course % 2 * 4) % 8;
  if (down % 4 == 3 || along == 7) return Stone[0];
  const bool mossy = Noise(x / 3.0, down / 3.0, 0, 491) > 0.70;
  if (mossy) return Leaf[down % 4 == 0 ? 4 : 3];
  if (down % 4 == 0 || along == 0) return Stone[3];
  return Stone[Hash(x / 8, course, 493) > 0.5 ? 2 : 1];
}

Colour Top(int x, int y) {
  const double moss = Noise(x / 4.0, y / 3.0, 0, 495);
  if (moss > 0.74) return Leaf[moss > 0.84 ? 5 : 4];
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
          colour = Block(x, y - top - depth);
          if (y == top + depth) colour = Stone[0];
        }
        Set(walls, x, y, colour);
      }
    }
  };
  slab(2, 1, 44, 6, 9);
  slab(2, 7, 9, 34, 0);
  slab(37, 7, 9, 34, 0);
  Box(walls, 11, 16, 26, 2, Stone[1]);
  Box(walls, 11, 18, 2, 15, Stone[1]);
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

// Three by two tiles of shrine cut into a cliff: gable above, columns and a dark doorway below.
Image Shrine() {
  Image shrine = Fill(48, 32, [](int x, int y) {
    return Rock[static_cast<int>(std::floor(FaceTone(x, y, y < 16 ? 15 : 22) - 0.6))];
  });
  for (int y = 2; y < 16; ++y) {
    const int reach = y < 10 ? (y - 1) * 3 : 23;
    for (int x = 24 - reach; x < 24 + reach; ++x) {
      Colour colour = Stone[3];
      if (y < 10) {
        const int from_rim = reach - std::abs(2 * x - 47) / 2;
        colour = from_rim < 2 ? Stone[0] : from_rim < 5 ? Stone[x < 24 ? 5 : 3] : Stone[2];
      } else {
        colour = y == 10 ? Stone[0] : y == 11 ? Stone[5] : y == 15 ? Stone[1] : Stone[4];
        if (y > 11 && y < 15 && x % 6 < 2) colour = Stone[2];
      }
      if (x == 24 - reach || x == 24 + reach - 1) colour = Stone[0];
      Set(shrine, x, y, colour);
    }
  }
  Stamp(shrine, 21, 4, {"..yy..", ".yYYo.", "yYkkYo", "yYkkYo", ".oYYo."},
        {{'y', Gold[3]}, {'Y', Gold[4]}, {'o', Gold[2]}, {'k', 0x20486C}});
  // The wall behind the columns, then the doorway, then the columns.
  Box(shrine, 2, 16, 44, 16, Stone[1]);
  for (int y = 16; y < 32; ++y) {
    for (int x = 2; x < 46; ++x) {
      if (y % 5 == 0 || (x + y / 5 * 4) % 8 == 0) Set(shrine, x, y, Stone[0]);
    }
  }
  for (const int left : {3, 9, 34, 40}) {
    Stamp(shrine, left, 16,
          {"khhlmk", "kllmdk", ".hlmd.", ".hlmd.", ".hlmd.", ".hlmd.", ".hlmd.", ".hlmd.", ".hlmd.",
           ".hlmd.", ".hlmd.", ".hlmd.", ".hlmd.", "khllmk", "kllmdk", "kkkkkk"},
          {{'k', Stone[0]}, {'h', Stone[5]}, {'l', Stone[4]}, {'m', Stone[3]}, {'d', Stone[2]}});
  }
  Stamp(shrine, 16, 16,
        {"khhhhhhhhhhhhmmk", "khkkkkkkkkkkkkmk", "khkzzzzzzzzzzkmk", "khkzzzzzzzzzzkmk",
         "khkzzzzzzzzzzkmk", "khkzzzzyyzzzzkmk", "khkzzzyYYyzzzkmk", "khkzzzzyyzzzzkmk",
         "khkzzzzzzzzzzkmk", "khkzzzzzzzzzzkmk", "khkzzzzzzzzzzkmk", "khkzzzzzzzzzzkmk",
         "khkvvvvvvvvvvkmk", "khkwwwwwwwwwwkmk", "khkxxxxxxxxxxkmk", "khkllllllllllkmk"},
        {{'k', Stone[0]},
         {'h', Stone[5]},
         {'m', Stone[3]},
         {'l', Stone[4]},
         {'z', 0x0C0814},
         {'v', 0x1C1828},
         {'w', 0x34303C},
         {'x', Stone[1]},
         {'y', Gold[1]},
         {'Y', Gold[3]}});
  return shrine;
}

Image ShrineSteps() {
  return Fill(TileSize, TileSize, [](int x, int y) {
    if (x == 0 || x == 15) return Stone[1];
    const int step = y % 4;
    return Stone[step == 0 ? 5 : step == 3 ? 2 : 4];
  });
}

// The gate of the last book: a black arch that glows violet, framed in stone.
Image Gate() {
  Image tile = Fill(TileSize, TileSize, [](int x, int y) { return Block(x, y); });
  Stamp(tile, 0, 0,
        {"kkkkkkkkkkkkkkkk", "khhhhhyYYyhhhmmk", "khhkkkkyykkkkmmk", "khkkvvvvvvvvkkmk",
         "khkvwwwwwwwwvkmk", "kkvwWzzzzzzWwvkk", "kyvwzzzzzzzzwvyk", "kYvwzzVVVVzzwvYk",
         "kyvwzzVUUVzzwvyk", "khvwzzVUUVzzwvmk", "khvwzzVVVVzzwvmk", "khvwzzzzzzzzwvmk",
         "khvwWzzzzzzWwvmk", "khvwwWWWWWWwwvmk", "khvUUUUUUUUUUvmk", "kkllllllllllllkk"},
        {{'k', Stone[0]},
         {'h', Stone[5]},
         {'m', Stone[3]},
         {'y', Gold[2]},
         {'Y', Gold[4]},
         {'v', 0x40186C},
         {'w', 0x281048},
         {'W', 0x5C2C94},
         {'z', 0x0C0418},
         {'V', 0x8C54D0},
         {'U', 0xD8B0FC},
         {'l', Stone[4]}});
  return tile;
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
  sheet.PutBlock(85, Shrine());
  sheet.Put(146, ShrineSteps());
  sheet.Put(131, Gate());
}

}  // namespace orvane::paint::tiles
