// Grass, forest floor and marsh.
#include <algorithm>
#include <cmath>

#include "content/pictures/tiles/grounds.h"
#include "content/pictures/tiles/noise.h"
#include "content/pictures/tiles/palette.h"

namespace orvane::paint::tiles {
namespace {

// A texture value whose border is the same in all variants and whose inside is the variant's own.
double Woven(int x, int y, int seed, int variant) {
  const auto grain = [&](int own) {
    return 0.55 * Noise(x / 4.0, y / 4.0, 4, own) + 0.45 * Noise(x / 2.0, y / 2.0, 8, own + 1);
  };
  const double inward = std::min(std::min(x, kTileSize - 1 - x), std::min(y, kTileSize - 1 - y));
  const double own_share = std::clamp((inward - 0.5) / 3.0, 0.0, 1.0);
  return grain(seed) * (1 - own_share) + grain(seed + 10 + variant * 10) * own_share;
}

// A few blades: dark at the root, bright at the tip.
void Blades(Image& tile, int x, int y, int shape) {
  const Key key = {{'d', kGrass[2]}, {'m', kGrass[3]}, {'l', kGrass[5]}, {'b', kGrass[6]}};
  switch (shape) {
    case 0:
      Stamp(tile, x, y, {"l.b", "ml.", ".dd"}, key);
      break;
    case 1:
      Stamp(tile, x, y, {".b.l", "blml", ".mld", "..d."}, key);
      break;
    case 2:
      Stamp(tile, x, y, {"l.", "ml", ".d"}, key);
      break;
    default:
      Stamp(tile, x, y, {"m.", ".m"}, key);
      break;
  }
}

void Flower(Image& tile, int x, int y, Colour petal, Colour dark_petal, Colour heart) {
  Stamp(tile, x, y, {".p.", "php", ".q.", ".sd"},
        {{'p', petal}, {'q', dark_petal}, {'h', heart}, {'s', kGrass[2]}, {'d', kGrass[2]}});
}

}  // namespace

Image GrassTile(int variant) {
  Image tile = Fill(kTileSize, kTileSize, [&](int x, int y) {
    const double grain = Woven(x, y, 3, variant);
    return grain < 0.36 ? kGrass[3] : kGrass[4];
  });
  switch (variant) {
    case 1:
      Blades(tile, 2, 9, 0);
      Blades(tile, 10, 3, 2);
      Blades(tile, 12, 11, 3);
      break;
    case 2:
      Blades(tile, 9, 8, 1);
      Blades(tile, 3, 3, 2);
      break;
    case 3:
      Blades(tile, 4, 5, 3);
      Blades(tile, 11, 12, 2);
      break;
    case 4:
      Flower(tile, 3, 2, 0xFCFCF4, 0xD0C8E0, kGold[3]);
      Flower(tile, 10, 8, 0xFCFCF4, 0xD0C8E0, kGold[3]);
      Blades(tile, 3, 10, 2);
      break;
    case 5:
      Flower(tile, 9, 2, 0xFCE060, 0xE0A030, 0xC06828);
      Flower(tile, 3, 8, 0xFCE060, 0xE0A030, 0xC06828);
      Flower(tile, 11, 11, 0xF8A0B4, 0xC86088, 0xFCF0A0);
      break;
    default:
      Blades(tile, 6, 3, 3);
      Blades(tile, 3, 11, 2);
      break;
  }
  return tile;
}

Image LitterTile(int variant) {
  Image tile = Fill(kTileSize, kTileSize, [&](int x, int y) {
    const double grain = Woven(x, y, 71, variant);
    return kLitter[grain < 0.30 ? 1 : grain < 0.52 ? 2 : grain < 0.74 ? 3 : 4];
  });
  // Fallen leaves, each two or three pixels with its own shade below.
  for (int i = 0; i < 3; ++i) {
    const int x = 1 + static_cast<int>(Hash(i, variant, 81) * 12);
    const int y = 1 + static_cast<int>(Hash(i, variant, 82) * 12);
    const Colour leaf = i % 3 == 0 ? 0xC07C38 : i % 3 == 1 ? kLitter[4] : 0x98A850;
    Stamp(tile, x, y, {"ll", ".l", "dd"}, {{'l', leaf}, {'d', kLitter[1]}});
  }
  if (variant == 1) {
    Stamp(tile, 1, 4,
          {"...ll.......", ".lmmmll.....", "lmd..dmmll..", ".d.....ddmml", "..........dd"},
          {{'l', kWood[3]}, {'m', kWood[2]}, {'d', kWood[1]}});
  }
  if (variant == 2) {
    for (const int x : {2, 8}) {
      Stamp(tile, x, x == 2 ? 3 : 7, {"l..l..l", ".lmlml.", "l.mlm.l", ".lmlml.", "..ddd.."},
            {{'l', kLeaf[5]}, {'m', kLeaf[3]}, {'d', kLitter[0]}});
    }
  }
  return tile;
}

// Wet ground with sedge, and in one variant with gleams of water.
Image MarshTile(int variant) {
  Image tile = Fill(kTileSize, kTileSize, [&](int x, int y) {
    const double moss = Woven(x, y, 114, variant);
    if (moss < 0.40) return kGrass[3];
    return kMarsh[moss < 0.56 ? 4 : moss < 0.74 ? 3 : 2];
  });
  const Key key = {{'d', kPool[3]},  {'w', kPool[4]},  {'l', kPool[5]},
                   {'h', kMarsh[5]}, {'m', kMarsh[4]}, {'k', kMarsh[1]}};
  if (variant == 1) {
    Stamp(tile, 8, 4, {"..ww.", "dwlwd", ".ww.."}, key);
    Stamp(tile, 3, 9, {".wwl..", "dwwlwd", "..dd.."}, key);
    Stamp(tile, 10, 10, {"h.h", "mhm", ".k."}, key);
  } else {
    Stamp(tile, 4, 4, {"h.h.", "mhmh", ".mm.", ".k.."}, key);
    Stamp(tile, 9, 9, {"h.h", "mhm", ".k."}, key);
  }
  return tile;
}

}  // namespace orvane::paint::tiles
