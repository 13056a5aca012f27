// Dirt, sand, gravel, waste and paving.
#include <algorithm>
#include <cmath>

#include "content/pictures/tiles/grounds.h"
#include "content/pictures/tiles/noise.h"
#include "content/pictures/tiles/palette.h"

namespace orvane::paint::tiles {
namespace {

double Grain(int x, int y, int seed) {
  return 0.55 * Noise(x / 4.0, y / 4.0, 4, seed) + 0.45 * Noise(x / 2.0, y / 2.0, 8, seed + 1);
}

void Pebble(Image& tile, int x, int y, bool large, const Colour light, const Colour body,
            const Colour dark) {
  const Key key = {{'l', light}, {'m', body}, {'d', dark}};
  if (large) {
    Stamp(tile, x, y, {".lm.", "lmmd", "mmdd", ".dd."}, key);
  } else {
    Stamp(tile, x, y, {"lm", "dd"}, key);
  }
}

}  // namespace

Image PathTile() {
  Image tile = Fill(kTileSize, kTileSize, [](int x, int y) {
    const double grain = Grain(x, y, 21);
    return kPath[grain < 0.36 ? 2 : grain < 0.70 ? 3 : 4];
  });
  const Key key = {{'l', kPath[5]}, {'d', 0xB08C5C}};
  Stamp(tile, 3, 4, {"l.", ".d"}, key);
  Stamp(tile, 11, 9, {"ld"}, key);
  Stamp(tile, 6, 13, {".l", "d."}, key);
  return tile;
}

Image SandTile(int variant) {
  Image tile = Fill(kTileSize, kTileSize, [](int x, int y) {
    const double grain = Grain(x, y, 31);
    return kSand[grain < 0.26 ? 2 : grain < 0.80 ? 3 : 4];
  });
  const Key key = {{'l', kSand[5]}, {'d', 0xD0B880}};
  if (variant == 1) Stamp(tile, 3, 5, {"..llll..", "ldddddll", "d......d"}, key);
  if (variant == 2) Stamp(tile, 5, 10, {".lllll..", "ddddddll"}, key);
  if (variant == 3) {
    Stamp(tile, 3, 3, {".ppp.", "pwpwp", "wpwpw", ".www.", "ddd.."},
          {{'p', 0xF4B0A0}, {'w', 0xFCF0E4}, {'d', kSand[1]}});
    Stamp(tile, 10, 9, {"..y..", "yyoyy", ".yoy.", "y.d.y"},
          {{'y', 0xE88850}, {'o', 0xF8B878}, {'d', kSand[1]}});
  }
  return tile;
}

namespace {

// Half gravel, half grass, ragged on every side, to stand between the two.
Image GravelInGrass() {
  const Image grass = GrassTile(0);
  const Image gravel = GravelTile(0);
  const auto bare = [](int x, int y) {
    return 0.65 * Noise(x / 4.0, y / 4.0, 4, 47) + 0.35 * Noise(x / 2.0, y / 2.0, 8, 48) > 0.55;
  };
  Image tile = Fill(kTileSize, kTileSize, [&](int x, int y) {
    if (!bare(x, y)) return bare(x, y + 1) || bare(x + 1, y) ? kGrass[5] : grass.At(x, y);
    return bare(x - 1, y) && bare(x, y - 1) ? gravel.At(x, y) : kGravel[1];
  });
  for (int i = 0; i < 5; ++i) {
    Pebble(tile, static_cast<int>(Hash(i, 1, 41) * 13), 1 + i * 14 / 5, i == 2, kGravel[5],
           kGravel[3], kGravel[0]);
  }
  return tile;
}

}  // namespace

Image GravelTile(int variant) {
  if (variant == 3) return GravelInGrass();
  Image tile = Fill(kTileSize, kTileSize, [](int x, int y) {
    const double grain = Grain(x, y, 43);
    return kGravel[grain < 0.30 ? 2 : grain < 0.76 ? 3 : 4];
  });
  for (int i = 0; i < 3; ++i) {
    Pebble(tile, 1 + static_cast<int>(Hash(i, variant, 44) * 11),
           1 + static_cast<int>(Hash(i, variant, 45) * 11), i == 0, kGravel[5], kGravel[3],
           kGravel[1]);
  }
  if (variant == 4) {
    for (const auto& [x, y] : {std::pair{2, 2}, {9, 3}, {4, 8}, {10, 10}}) {
      Pebble(tile, x, y, true, kGravel[5], kGravel[4], kGravel[0]);
    }
  }
  if (variant == 5) {
    Stamp(tile, 2, 3,
          {"dd........", "lldd......", "...ldd....", ".....ldd..", "....ddll..", "...dll....",
           "....d.....", "....ld...."},
          {{'d', kGravel[1]}, {'l', kGravel[5]}});
  }
  return tile;
}

Image WasteTile(int variant) {
  Image tile = Fill(kTileSize, kTileSize, [](int x, int y) {
    const double grain = Grain(x, y, 51);
    return kWaste[grain < 0.34 ? 2 : grain < 0.72 ? 3 : 4];
  });
  // Cracks lie inside the tile, each variant has its own; a lit edge below and to the right.
  const Key key = {{'d', kWaste[1]}, {'l', kWaste[5]}, {'k', kWaste[0]}};
  switch (variant) {
    case 1:
      Stamp(tile, 2, 9, {".....dd.", "...ddl..", "ddddl...", "..lll..."}, key);
      Pebble(tile, 10, 3, true, kWaste[5], kWaste[3], kWaste[0]);
      break;
    case 2:
      Stamp(tile, 8, 3, {"d.....", "dd....", "ldddd.", "..llld"}, key);
      Pebble(tile, 3, 11, false, kWaste[5], kWaste[3], kWaste[0]);
      break;
    case 3:
      Stamp(tile, 1, 2,
            {".d...........", "..dd......dd.", "..lkdd..ddl..", "....lkkdkl...", "......lkk....",
             ".......lkd...", "........kl...", ".......dk....", "......dkl....", "......dl.....",
             ".......d....."},
            key);
      break;
    default:
      Stamp(tile, 4, 6, {"dd...", "..dd.", "..lll"}, key);
      break;
  }
  return tile;
}

Image PavingTile(int variant) {
  // Slabs of a running bond: two courses of 8 pixels, joints dark below and right, light above.
  Image tile = Fill(kTileSize, kTileSize, [](int x, int y) {
    const int course = y / 8;
    const int along = (x + (course == 0 ? 3 : 11)) % kTileSize;
    const int across = y % 8;
    const int slab = course * 2 + (along < 9 ? 0 : 1);
    const int left = along < 9 ? along : along - 9;
    const int width = along < 9 ? 9 : 7;
    if (across == 7 || left == width - 1) return kPaving[1];
    if (across == 0 || left == 0) return kPaving[4];
    const double grain = Grain(x, y, 61) + (slab == 1 ? 0.12 : slab == 2 ? -0.1 : 0);
    return kPaving[grain < 0.34 ? 2 : grain < 0.74 ? 3 : 4];
  });
  if (variant == 1) {
    Stamp(tile, 3, 1, {"d......", ".dd....", "..ldd..", "....ld.", "...dd..", "..dl...", "...d..."},
          {{'d', kPaving[0]}, {'l', kPaving[5]}});
    Stamp(tile, 9, 9, {".gg..", "gGggg", ".ggGg", "..dgd"},
          {{'g', 0x7C9458}, {'G', 0x98B068}, {'d', kPaving[1]}});
  }
  return tile;
}

}  // namespace orvane::paint::tiles
