// Small things that stand about on grass.

#include "content/pictures/tiles/families.h"
#include "content/pictures/tiles/grounds.h"
#include "content/pictures/tiles/palette.h"

namespace orvane::paint::tiles {
namespace {

Image Sign() {
  Image tile = GrassTile(0);
  CastShadow(tile, 9, 14, 6, 1.8, 0.6);
  Stamp(tile, 1, 1,
        {".kkkkkkkkkkkk.", "klhhhhhhhhhhmk", "khmmmmmmmmmmdk", "khmkkmkkkmkmdk", "khmmmmmmmmmmdk",
         "khmkkkmkkmmmdk", "khmmmmmmmmmmdk", "kmddddddddddsk", ".kkkkkkkkkkkk.", ".....kldk.....",
         ".....kldk.....", ".....kldk.....", ".....kldk.....", "....kkkkkk...."},
        {{'k', Wood[0]},
         {'l', Wood[4]},
         {'h', Wood[5]},
         {'m', Wood[4]},
         {'d', Wood[3]},
         {'s', Wood[2]}});
  return tile;
}

Image Fence(bool rails) {
  Image tile = GrassTile(0);
  if (rails) {
    Box(tile, 0, 14, 16, 1, Grass[1]);
    for (const int y : {4, 9}) {
      Box(tile, 0, y, 16, 1, Wood[5]);
      Box(tile, 0, y + 1, 16, 1, Wood[3]);
      Box(tile, 0, y + 2, 16, 1, Wood[0]);
    }
  }
  const auto post = [&](int x, int y) {
    Stamp(tile, x, y,
          {".kk.", "khlk", "kldk", "kldk", "kldk", "kldk", "kldk", "kldk", "kldk", "kldk", "kldk",
           "kldk", "kkkk", ".ss."},
          {{'k', Wood[0]}, {'h', Wood[5]}, {'l', Wood[4]}, {'d', Wood[2]}, {'s', Grass[1]}});
  };
  if (rails) {
    post(2, 2);
    post(10, 2);
  } else {
    Box(tile, 6, 0, 4, 3, Wood[2]);
    Box(tile, 6, 0, 1, 16, Wood[0]);
    Box(tile, 9, 0, 1, 16, Wood[0]);
    Box(tile, 7, 0, 1, 16, Wood[4]);
    Box(tile, 8, 0, 1, 16, Wood[2]);
    post(6, 1);
  }
  return tile;
}

Image Boulder() {
  Image tile = GrassTile(0);
  CastShadow(tile, 9, 12.5, 7.4, 3, 0.65);
  Stamp(tile, 0, 1,
        {"......kkkk......", "....kkhhllkk....", "...khhhhllmmk...", "..khhhllllmmdk..",
         "..khhlllkmmmdk..", ".khhlllkmmmmddk.", ".khllllkmmmdddk.", ".kllllkmmmmddsk.",
         "klllmmkmmmddddsk", "kllmmmmkmmdddssk", "klmmmmmdkddddssk", ".kmmmdddddddssk.",
         ".kkddddddsssskk.", "...kkkkkkkkkk..."},
        {{'k', Rock[0]},
         {'h', Rock[7]},
         {'l', Rock[5]},
         {'m', Rock[4]},
         {'d', Rock[3]},
         {'s', Rock[2]}});
  return tile;
}

}  // namespace

void PaintObjects(Sheet& sheet) {
  sheet.Put(34, Sign());
  sheet.Put(41, Fence(true));
  sheet.Put(42, Fence(false));
  sheet.Put(230, Boulder());
}

}  // namespace orvane::paint::tiles
