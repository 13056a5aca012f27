// The shrine cut into a cliff and the gate of the last book.
#include <cmath>

#include "content/pictures/tiles/families.h"
#include "content/pictures/tiles/palette.h"
#include "content/pictures/tiles/rockface.h"

namespace orvane::paint::tiles {
namespace {

// Three by two tiles of shrine cut into a cliff: gable above, columns and a dark doorway below.
Image Shrine() {
  Image shrine = Fill(48, 32, [](int x, int y) {
    return kRock[static_cast<int>(std::floor(FaceTone(x, y, y < 16 ? 15 : 22) - 0.6))];
  });
  for (int y = 2; y < 16; ++y) {
    const int reach = y < 10 ? (y - 1) * 3 : 23;
    for (int x = 24 - reach; x < 24 + reach; ++x) {
      Colour colour = kStone[3];
      if (y < 10) {
        const int from_rim = reach - std::abs(2 * x - 47) / 2;
        colour = from_rim < 2 ? kStone[0] : from_rim < 5 ? kStone[x < 24 ? 5 : 3] : kStone[2];
      } else {
        colour = y == 10 ? kStone[0] : y == 11 ? kStone[5] : y == 15 ? kStone[1] : kStone[4];
        if (y > 11 && y < 15 && x % 6 < 2) colour = kStone[2];
      }
      if (x == 24 - reach || x == 24 + reach - 1) colour = kStone[0];
      Set(shrine, x, y, colour);
    }
  }
  Stamp(shrine, 21, 4, {"..yy..", ".yYYo.", "yYkkYo", "yYkkYo", ".oYYo."},
        {{'y', kGold[3]}, {'Y', kGold[4]}, {'o', kGold[2]}, {'k', 0x20486C}});
  // The wall behind the columns, then the doorway, then the columns.
  Box(shrine, 2, 16, 44, 16, kStone[1]);
  for (int y = 16; y < 32; ++y) {
    for (int x = 2; x < 46; ++x) {
      if (y % 5 == 0 || (x + y / 5 * 4) % 8 == 0) Set(shrine, x, y, kStone[0]);
    }
  }
  for (const int left : {3, 9, 34, 40}) {
    Stamp(
        shrine, left, 16,
        {"khhlmk", "kllmdk", ".hlmd.", ".hlmd.", ".hlmd.", ".hlmd.", ".hlmd.", ".hlmd.", ".hlmd.",
         ".hlmd.", ".hlmd.", ".hlmd.", ".hlmd.", "khllmk", "kllmdk", "kkkkkk"},
        {{'k', kStone[0]}, {'h', kStone[5]}, {'l', kStone[4]}, {'m', kStone[3]}, {'d', kStone[2]}});
  }
  Stamp(shrine, 16, 16,
        {"khhhhhhhhhhhhmmk", "khkkkkkkkkkkkkmk", "khkzzzzzzzzzzkmk", "khkzzzzzzzzzzkmk",
         "khkzzzzzzzzzzkmk", "khkzzzzyyzzzzkmk", "khkzzzyYYyzzzkmk", "khkzzzzyyzzzzkmk",
         "khkzzzzzzzzzzkmk", "khkzzzzzzzzzzkmk", "khkzzzzzzzzzzkmk", "khkzzzzzzzzzzkmk",
         "khkvvvvvvvvvvkmk", "khkwwwwwwwwwwkmk", "khkxxxxxxxxxxkmk", "khkllllllllllkmk"},
        {{'k', kStone[0]},
         {'h', kStone[5]},
         {'m', kStone[3]},
         {'l', kStone[4]},
         {'z', 0x0C0814},
         {'v', 0x1C1828},
         {'w', 0x34303C},
         {'x', kStone[1]},
         {'y', kGold[1]},
         {'Y', kGold[3]}});
  return shrine;
}

Image ShrineSteps() {
  return Fill(kTileSize, kTileSize, [](int x, int y) {
    if (x == 0 || x == 15) return kStone[1];
    const int step = y % 4;
    return kStone[step == 0 ? 5 : step == 3 ? 2 : 4];
  });
}

// The gate of the last book: a black arch that glows violet, framed in stone.
Image Gate() {
  Image tile = Fill(kTileSize, kTileSize, [](int x, int y) { return BlockColour(x, y); });
  Stamp(tile, 0, 0,
        {"kkkkkkkkkkkkkkkk", "khhhhhyYYyhhhmmk", "khhkkkkyykkkkmmk", "khkkvvvvvvvvkkmk",
         "khkvwwwwwwwwvkmk", "kkvwWzzzzzzWwvkk", "kyvwzzzzzzzzwvyk", "kYvwzzVVVVzzwvYk",
         "kyvwzzVUUVzzwvyk", "khvwzzVUUVzzwvmk", "khvwzzVVVVzzwvmk", "khvwzzzzzzzzwvmk",
         "khvwWzzzzzzWwvmk", "khvwwWWWWWWwwvmk", "khvUUUUUUUUUUvmk", "kkllllllllllllkk"},
        {{'k', kStone[0]},
         {'h', kStone[5]},
         {'m', kStone[3]},
         {'y', kGold[2]},
         {'Y', kGold[4]},
         {'v', 0x40186C},
         {'w', 0x281048},
         {'W', 0x5C2C94},
         {'z', 0x0C0418},
         {'V', 0x8C54D0},
         {'U', 0xD8B0FC},
         {'l', kStone[4]}});
  return tile;
}

}  // namespace

void PaintShrine(Sheet& sheet) {
  sheet.PutBlock(85, Shrine());
  sheet.Put(146, ShrineSteps());
  sheet.Put(131, Gate());
}

}  // namespace orvane::paint::tiles
