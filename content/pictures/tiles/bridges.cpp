// Wooden bridges and stone stairs.
#include "content/pictures/tiles/families.h"
#include "content/pictures/tiles/grounds.h"
#include "content/pictures/tiles/noise.h"
#include "content/pictures/tiles/palette.h"

namespace orvane::paint::tiles {
namespace {

// The deck at `along` the bridge and `across` it, both 0..15: rails at the sides, planks between.
Colour Deck(int along, int across, bool level) {
  if (across == 0 || across == 15) return kWood[0];
  if (across == 1) return kWood[4];
  if (across == 2) return along % 8 == 3 ? kWood[1] : kWood[2];
  if (across == 3) return kWood[1];
  if (across == 13) return level ? kWood[4] : kWood[3];
  if (across == 14) return along % 8 == 3 ? kWood[1] : kWood[2];
  if (across == 12) return kWood[1];
  const int plank = along / 4;
  const int within = along % 4;
  if (within == 3) return kWood[2];  // a darker seam would swallow the hero's outline
  if (across == 4) return kWood[3];
  const bool worn = Hash(plank, across / 3, 401) > 0.72;
  if (within == 0) return kWood[5];
  if ((across == 5 || across == 10) && within == 1) return kWood[2];
  return worn ? kWood[3] : kWood[4];
}

Image BridgeMiddle(bool level) {
  return Fill(kTileSize, kTileSize,
              [&](int x, int y) { return level ? Deck(x, y, true) : Deck(y, x, false); });
}

void Post(Image& tile, int x, int y) {
  Stamp(tile, x, y, {".kkk.", "klhmk", "kmmdk", "khmdk", "klmdk", "klmdk", "kmmdk"},
        {{'k', kWood[0]},
         {'l', kWood[4]},
         {'h', kWood[5]},
         {'m', kWood[3]},
         {'d', kWood[2]},
         {'s', kGrass[1]}});
}

// The end of a bridge on its bank; `from` is the side of the land: 0 west, 1 east, 2 up, 3 down.
Image BridgeEnd(int from) {
  Image tile = GrassTile(0);
  for (int y = 0; y < kTileSize; ++y) {
    for (int x = 0; x < kTileSize; ++x) {
      const int along = from < 2 ? x : y;
      const int across = from < 2 ? y : x;
      const int into = from % 2 == 0 ? along : kTileSize - 1 - along;
      // Trodden earth leads up to the first plank.
      if (into < 5) {
        if (across > 3 && across < 12) {
          tile.At(x, y) = kPath[Hash(x, y, 411) < 0.25 ? 2 : into == 4 ? 2 : 3];
        }
        continue;
      }
      tile.At(x, y) =
          into == 5 && across > 3 && across < 12 ? kWood[1] : Deck(along, across, from < 2);
    }
  }
  switch (from) {
    case 0:
      Post(tile, 2, -2);
      Post(tile, 2, 9);
      break;
    case 1:
      Post(tile, 9, -2);
      Post(tile, 9, 9);
      break;
    case 2:
      Post(tile, 0, 1);
      Post(tile, 11, 1);
      break;
    default:
      Post(tile, 0, 8);
      Post(tile, 11, 8);
  }
  return tile;
}

// Steps of four pixels: a lit tread and a riser in shade; cheek walls where wanted.
Image Stairs(bool west_cheek, bool east_cheek) {
  return Fill(kTileSize, kTileSize, [&](int x, int y) {
    if (west_cheek && x < 3) return kRock[x == 0 ? 1 : x == 1 ? 6 : 4];
    if (east_cheek && x > 12) return kRock[x == 15 ? 1 : x == 13 ? 5 : 3];
    if (west_cheek && x == 3) return kRock[2];
    const int step = y % 4;
    const int wear = Hash(x / 3, y / 4, 421) > 0.7 ? 1 : 0;
    if (step == 0) return kRock[7];
    if (step == 1) return kRock[6 - wear];
    if (step == 2) return kRock[5];
    return kRock[3 - wear];
  });
}

}  // namespace

void PaintBridges(Sheet& sheet) {
  sheet.Put(31, BridgeEnd(0));
  sheet.Put(32, BridgeMiddle(true));
  sheet.Put(33, BridgeEnd(1));
  sheet.Put(43, BridgeEnd(2));
  sheet.Put(35, BridgeMiddle(false));
  sheet.Put(44, BridgeEnd(3));
  sheet.Put(52, Stairs(true, false));
  sheet.Put(53, Stairs(false, false));
  sheet.Put(54, Stairs(false, true));
  sheet.Put(62, Stairs(true, true));
}

}  // namespace orvane::paint::tiles
