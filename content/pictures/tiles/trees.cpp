// Woods and single trees.
#include <cmath>

#include "content/pictures/tiles/crown.h"
#include "content/pictures/tiles/families.h"
#include "content/pictures/tiles/grounds.h"
#include "content/pictures/tiles/noise.h"
#include "content/pictures/tiles/palette.h"

namespace orvane::paint::tiles {
namespace {

void Trunk(Image& image, int x, int top, int bottom, int half) {
  for (int y = top; y <= bottom; ++y) {
    const int flare = y > bottom - 2 ? 1 : 0;
    for (int i = -half - flare; i <= half + flare; ++i) {
      const bool rim = std::abs(i) == half + flare;
      Set(image, x + i, y, rim ? kWood[0] : kWood[i < 0 ? 3 : i == 0 ? 2 : 1]);
    }
  }
}

Image GreatTree() {
  Image tree = Tiled(GrassTile(0), 32, 32);
  CastShadow(tree, 17, 28, 13, 3.6, 0.7);
  Trunk(tree, 16, 20, 29, 3);
  const Crown crown{15.5, 12.5, 14.8, 12.0, 5, 0};
  PaintCrown(tree, crown, Heap(crown), kLeaf);
  return tree;
}

// A mass of trees: crowns on a lattice of one tile, each second row between those of the first.
// Every crown that reaches over a border inside the mass is there on both sides of it.
Image Woods() {
  Image woods = Tiled(GrassTile(0), 48, 48);
  for (int x = 8; x < 48; x += 16) CastShadow(woods, x + 1, 44, 9, 3.4, 0.75);
  Box(woods, 6, 14, 36, 28, kLeaf[0]);
  for (int x = 8; x < 48; x += 16) Trunk(woods, x, 38, 46, 2);
  for (int row = 0; row < 3; ++row) {
    for (int column = 0; column < 3; ++column) {
      const Crown near{column * 16 + 7.5, row * 16 + 6.8, 8.4, 7.0, 11, 0.2};
      PaintCrown(woods, near, Heap(near), kLeaf);
    }
    if (row == 2) break;
    for (int column = 1; column < 3; ++column) {
      const Crown between{column * 16 - 0.5, row * 16 + 15.0, 8.2, 7.2, 23, -0.5};
      PaintCrown(woods, between, Heap(between), kLeaf);
    }
  }
  return woods;
}

Image FirTree() {
  Image tree = Tiled(GrassTile(0), 16, 32);
  CastShadow(tree, 8.5, 28.5, 7, 2.8, 0.7);
  Trunk(tree, 8, 25, 29, 1);
  // Four skirts of boughs, the lower ones wider and drawn first.
  for (int skirt = 3; skirt >= 0; --skirt) {
    const double top = 1 + skirt * 5.2;
    const double bottom = 10.5 + skirt * 5.6;
    const double half = 3.4 + skirt * 1.35;
    for (int y = 0; y < 32; ++y) {
      const double down = (y - top) / (bottom - top);
      if (down < 0 || down > 1) continue;
      for (int x = 0; x < 16; ++x) {
        const double aside = x - 7.5;
        const double ragged = 1.3 * (Hash(x, skirt, 471) - 0.5);
        const double width = half * down + ragged * down + 0.4;
        if (std::abs(aside) > width) continue;
        if (down > 0.82 && (x + skirt) % 3 == 0) continue;
        const bool rim = std::abs(aside) > width - 0.9;
        double tone = 2.6 - 1.9 * aside / half + (down - 0.5) * 1.2;
        if (down < 0.3) tone -= 1.2;
        tone += 0.9 * (Hash(x, y / 2, 473) - 0.5);
        tree.At(x, y) = rim ? kFir[0] : kFir[std::max(1, static_cast<int>(std::floor(tone)))];
      }
    }
  }
  return tree;
}

Image Bush() {
  Image tile = GrassTile(0);
  CastShadow(tile, 8.5, 12, 7.4, 3, 0.6);
  const Crown crown{7.5, 7.6, 7.2, 5.8, 37, 0.3};
  PaintCrown(tile, crown, Heap(crown), kLeaf);
  for (const auto& [x, y] : {std::pair{4, 6}, {9, 4}, {11, 9}, {6, 10}}) {
    Stamp(tile, x, y, {"rd"}, {{'r', 0xF46858}, {'d', 0x981830}});
  }
  return tile;
}

Image DeadTree() {
  Image tile = WasteTile(0);
  CastShadow(tile, 9, 14, 6, 2, 0.6);
  Stamp(tile, 1, 0,
        {"..k.....k.....", ".klk...klk.kk.", ".klk.k.kmk.klk", "..klkk.kmkklk.", "k..klmkklmlk..",
         "lkk.kmmklmk...", "kllkkkmlmk..k.", ".kkmmmkmmk.klk", "...kkkmlmkkmk.", ".....kmlmmmk..",
         "......klmkk...", "......klmk....", "......klmk....", ".....klmmdk...", "....klmkmmdk..",
         "....kk.kkkk..."},
        {{'k', 0x24141C}, {'l', 0xC0A088}, {'m', 0x84685C}, {'d', 0x584048}});
  return tile;
}

}  // namespace

void PaintTrees(Sheet& sheet) {
  sheet.PutBlock(91, GreatTree());
  sheet.PutBlock(88, Woods());
  sheet.PutBlock(93, FirTree());
  sheet.Put(49, Bush());
  sheet.Put(174, DeadTree());
}

}  // namespace orvane::paint::tiles
