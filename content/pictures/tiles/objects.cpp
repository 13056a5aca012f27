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
        {{'k', kWood[0]},
         {'l', kWood[4]},
         {'h', kWood[5]},
         {'m', kWood[4]},
         {'d', kWood[3]},
         {'s', kWood[2]}});
  return tile;
}

Image Fence(bool rails) {
  Image tile = GrassTile(0);
  if (rails) {
    Box(tile, 0, 14, 16, 1, kGrass[1]);
    for (const int y : {4, 9}) {
      Box(tile, 0, y, 16, 1, kWood[5]);
      Box(tile, 0, y + 1, 16, 1, kWood[3]);
      Box(tile, 0, y + 2, 16, 1, kWood[0]);
    }
  }
  const auto post = [&](int x, int y) {
    Stamp(tile, x, y,
          {".kk.", "khlk", "kldk", "kldk", "kldk", "kldk", "kldk", "kldk", "kldk", "kldk", "kldk",
           "kldk", "kkkk", ".ss."},
          {{'k', kWood[0]}, {'h', kWood[5]}, {'l', kWood[4]}, {'d', kWood[2]}, {'s', kGrass[1]}});
  };
  if (rails) {
    post(2, 2);
    post(10, 2);
  } else {
    Box(tile, 6, 0, 4, 3, kWood[2]);
    Box(tile, 6, 0, 1, 16, kWood[0]);
    Box(tile, 9, 0, 1, 16, kWood[0]);
    Box(tile, 7, 0, 1, 16, kWood[4]);
    Box(tile, 8, 0, 1, 16, kWood[2]);
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
        {{'k', kRock[0]},
         {'h', kRock[7]},
         {'l', kRock[5]},
         {'m', kRock[4]},
         {'d', kRock[3]},
         {'s', kRock[2]}});
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
