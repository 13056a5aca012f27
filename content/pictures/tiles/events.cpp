// What the hero walks onto and something happens: chests and the recovery point.
#include <cmath>

#include "content/pictures/tiles/families.h"
#include "content/pictures/tiles/palette.h"

namespace orvane::paint::tiles {
namespace {

// A flat slab of pale stone with chipped corners; it looks right on every ground.
Image Flagstone(int width, int height) {
  return Fill(width, height, [&](int x, int y) {
    const bool rim_low = x == width - 1 || y == height - 1;
    const bool rim_high = x == 0 || y == 0;
    if (rim_low) return kStone[1];
    if (rim_high) return kStone[5];
    if (x == width - 2 || y == height - 2) return kStone[2];
    return kStone[(x * 7 + y * 5) % 13 == 0 ? 3 : 4];
  });
}

Image Chest() {
  Image tile = Flagstone(kTileSize, kTileSize);
  Stamp(tile, 0, 1,
        {"...kkkkkkkkkk...", "..kbdddddddcbk..", ".kydeeeeeedcyak.", ".kydeeeeeddcyak.",
         ".kycddddddccyak.", ".kybcccyycbbyak.", ".kkkkkyYYokkkkk.", ".kyooyYkkYoyook.",
         ".kybccyYYocbyak.", ".kydddcoocdcyak.", ".kydddcccddcyak.", ".kybcccccccbyak.",
         ".kkkkkkkkkkkkkk.", "..ssssssssssss.."},
        {{'k', 0x20100C},
         {'a', 0x542C14},
         {'b', 0x7C4418},
         {'c', 0xA86424},
         {'d', 0xD08C3C},
         {'e', 0xF4C474},
         {'y', kGold[3]},
         {'Y', kGold[4]},
         {'o', kGold[2]},
         {'s', kStone[1]}});
  return tile;
}

// A great chest of books, two by two tiles: an open case with bright spines and a gold clasp.
Image BookChest() {
  Image chest = Flagstone(32, 32);
  CastShadow(chest, 17, 29, 15, 2.6, 0.6);
  Stamp(chest, 2, 1, {"....kkkkkkkkkkkkkkkkkkkk....", "..kkllllllllllllllllllllkk..",
                      ".kllyyyyyyyyyyyyyyyyyyyyllk.", ".klyzzzzzzzzzyYYyzzzzzzzyck.",
                      ".klyzzzzzzzzyYkkYyzzzzzzyck.", ".klyzzzzzzzzyYkkYyzzzzzzyck.",
                      ".klyzzzzzzzzzyYYyzzzzzzzyck.", ".kcoooooooooooooooooooooock.",
                      "kkkkkkkkkkkkkkkkkkkkkkkkkkkk", "kyddddddddddddddddddddddddok",
                      "kydrRkgGGkuUkyYkpPkrRkuUUdok", "kydrRkgGGkuUkyYkpPkrRkuUUdok",
                      "kydwwkgGGkwwkyYkwwkrRkuUUdok", "kydrRkwwwkuUkwwkpPkwwkwwwdok",
                      "kydrRkgGGkuUkyYkpPkrRkuUUdok", "kydrrkgggkuukyykppkrrkuuudok",
                      "kyllllllllllllllllllllllllok", "kybbbbbbbbbbbbbbbbbbbbbbbbok",
                      "kyddddddddddddddddddddddddok", "kyduUUkyYkrRkpPPkgGkuUkrRdok",
                      "kyduUUkyYkrRkpPPkgGkuUkrRdok", "kydwwwkyYkwwkpPPkwwkuUkwwdok",
                      "kyduUUkwwkrRkwwwkgGkwwkrRdok", "kyduUUkyYkrRkpPPkgGkuUkrRdok",
                      "kyduuukyykrrkpppkggkuukrrdok", "kyllllllllllllllllllllllllok",
                      "kyoooooooooooooooooooooooook", "kkkkkkkkkkkkkkkkkkkkkkkkkkkk",
                      ".kk......................kk."},
        {{'k', 0x20100C},
         {'l', kWood[4]},
         {'c', kWood[2]},
         {'b', kWood[2]},
         {'d', 0x2C140C},
         {'y', kGold[3]},
         {'Y', kGold[4]},
         {'o', kGold[1]},
         {'z', kCarpet[2]},
         {'w', 0xF8ECC8},
         {'r', 0x8C1C24},
         {'R', 0xE05048},
         {'g', 0x1C6030},
         {'G', 0x58B058},
         {'u', 0x24408C},
         {'U', 0x6090E0},
         {'p', 0x602878},
         {'P', 0xB070C8}});
  return chest;
}

// A disc of pale stone with a ring of light and a star of eight points.
Image RecoveryPoint() {
  const Image slab = Flagstone(kTileSize, kTileSize);
  return Fill(kTileSize, kTileSize, [&](int x, int y) {
    const double dx = x - 7.5;
    const double dy = y - 7.5;
    const double distance = std::hypot(dx, dy);
    const double turn = std::atan2(dy, dx);
    if (distance > 7.9) return Shaded(slab.At(x, y), 0.25);
    if (distance > 6.9) return kGlow[0];
    if (distance > 5.7) return kGlow[4];
    if (distance > 5.0) return kGlow[1];
    const double star = 3.1 + 1.7 * std::cos(4 * turn);
    if (distance < 1.4) return kGlow[4];
    if (distance < star) return kGlow[3];
    if (distance < star + 0.8) return kGlow[2];
    return kGlow[1];
  });
}

}  // namespace

void PaintEvents(Sheet& sheet) {
  sheet.Put(36, Chest());
  sheet.PutBlock(73, BookChest());
  sheet.Put(135, RecoveryPoint());
}

}  // namespace orvane::paint::tiles
