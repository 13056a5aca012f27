// Rooms behind doors: walls, shelves, boards and the carpet.
#include <algorithm>
#include <cmath>

#include "content/pictures/tiles/families.h"
#include "content/pictures/tiles/noise.h"
#include "content/pictures/tiles/palette.h"

namespace orvane::paint::tiles {
namespace {

Image WallTop() {
  return Fill(kTileSize, kTileSize, [](int x, int y) -> Colour {
    return Noise(x / 4.0, y / 4.0, 4, 501) > 0.72 ? 0x1C1224U : kDark[0];
  });
}

Image WallFace() {
  return Fill(kTileSize, kTileSize, [](int x, int y) -> Colour {
    if (y == 0) return kDark[0];
    if (y < 3) return kWood[y == 1 ? 4 : 2];
    if (y > 12) return y == 15 ? kWood[0] : kWood[y == 13 ? 3 : 1];
    if (y == 3) return kStone[0];
    const int course = (y - 4) / 3;
    if ((y - 4) % 3 == 2 || (x + course % 2 * 4) % 8 == 0) return kDark[2];
    return (y - 4) % 3 == 0 ? kDark[6] : kDark[5];
  });
}

Image LampFace() {
  Image tile = WallFace();
  for (int y = 3; y < 13; ++y) {
    for (int x = 0; x < kTileSize; ++x) {
      if (std::hypot(x - 7.5, (y - 6.0) * 1.1) < 6.2)
        tile.At(x, y) = kDark[(y - 4) % 3 == 2 ? 4 : 7];
    }
  }
  Stamp(tile, 5, 2,
        {"..yy..", ".ywwy.", ".owwo.", "..oo..", ".kggk.", "..kk..", "..kk..", "...k.."},
        {{'y', 0xFCD060}, {'w', 0xFFFCE0}, {'o', 0xF48830}, {'k', 0x34201C}, {'g', kGold[3]}});
  return tile;
}

// Two boards of books under a top that is seen from above; the shelf throws a shadow on the floor,
// so that it stands in the middle of a room as well as against its wall.
Image Bookshelf() {
  Image tile(kTileSize, kTileSize, kWood[0]);
  Stamp(tile, 0, 0,
        {"kkkkkkkkkkkkkkkk", "llllllllllllllll", "nnnnnnnnnnnnnnnn", "kzzRrzzGgzzzzBbn",
         "kQqRrEeGgBbzzBbn", "kQqRrEeGgBbYyBbn", "kqqrreeggbbyybbn", "nnnnnnnnnnnnnnnn",
         "kBbzzzzQqzzRrzzn", "kBbEeGgQqzzRrYyn", "kBbEeGgQqGgRrYyn", "kbbeeggqqggrryyn",
         "nnnnnnnnnnnnnnnn", "kkkkkkkkkkkkkkkk", "ssssssssssssssss", "tttttttttttttttt"},
        {{'k', kWood[0]},
         {'l', kWood[4]},
         {'n', kWood[2]},
         {'z', 0x20100C},
         {'r', 0x842C34},
         {'R', 0xC45C4C},
         {'g', 0x2C5C48},
         {'G', 0x5C9468},
         {'b', 0x38487C},
         {'B', 0x6484B8},
         {'y', 0xA07030},
         {'Y', 0xDCB458},
         {'q', 0x6C4830},
         {'Q', 0xA87850},
         {'e', 0xB0A080},
         {'E', 0xE4D8B4},
         {'s', 0x7C5834},
         {'t', 0xA87C48}});
  return tile;
}

// A dark wall whose rim toward the room is lit: 0 room to the right, 1 to the left, 2 above.
Image SideWall(int side) {
  const Image top = WallTop();
  return Fill(kTileSize, kTileSize, [&](int x, int y) -> Colour {
    const int from_room = side == 0 ? 15 - x : side == 1 ? x : y;
    if (from_room == 0) return kWood[0];
    if (from_room == 1) return kWood[side == 1 ? 3 : 4];
    if (from_room == 2) return kWood[2];
    if (from_room == 3) return kWood[0];
    return top.At(x, y);
  });
}

// Four long boards in a tile, each with one end; the second variant has its ends elsewhere and a
// knot. Seams are only a little darker than the wood, so that the floor stays calm.
Image Boards(int variant) {
  Image tile = Fill(kTileSize, kTileSize, [&](int x, int y) -> Colour {
    const int board = y / 4;
    const int within = y % 4;
    const int end = (board * 6 + variant * 5 + 2) % kTileSize;
    if (within == 3) return 0xB4864C;
    if (x == end) return 0xBC9054;
    if (within == 0) return 0xE0B87C;
    const bool grain = within == 2 && Hash(x / 5 + board * 3, board, 511 + variant) > 0.6;
    return grain ? 0xCCA062 : 0xD6AC6E;
  });
  if (variant == 1) Stamp(tile, 8, 5, {"kd", "dk"}, {{'d', 0xC09458}, {'k', 0xA87C44}});
  return tile;
}

Image CarpetPicture() {
  const Image boards = Tiled(Boards(0), 48, 16);
  return Fill(48, 16, [&](int x, int y) -> Colour {
    const int in = x < 24 ? x - 3 : 44 - x;
    if (in < -1) return boards.At(x, y);
    if (in == -1) return kWood[1];
    if (in == 0) return kCarpet[0];
    if (in < 3) return kGold[in == 1 ? 3 : 2];
    if (in == 3) return kCarpet[1];
    const int u = std::abs(x % 16 - 8);
    const int v = std::abs(y - 8);
    if (in > 5 && u + v == 5) return kGold[2];
    if (in > 5 && u + v < 2) return kGold[3];
    return kCarpet[(x + y) % 4 == 0 ? 3 : 2];
  });
}

Image ExitMat() {
  Image tile = Boards(1);
  for (int y = 2; y < 14; ++y) {
    for (int x = 1; x < 15; ++x) {
      const bool rim = y == 2 || y == 13 || x == 1 || x == 14;
      tile.At(x, y) = rim ? 0x3C5C30 : (x + y) % 3 == 0 ? 0x88A858 : 0x6C9048;
    }
  }
  Stamp(tile, 4, 5, {"..yyyy..", "..yyyy..", "yyyyyyyy", ".yyyyyy.", "..yyyy..", "...yy..."},
        {{'y', 0xF0E8A8}});
  return tile;
}

}  // namespace

void PaintRooms(Sheet& sheet) {
  sheet.Put(55, WallTop());
  sheet.Put(56, WallFace());
  sheet.Put(57, LampFace());
  sheet.Put(58, Bookshelf());
  sheet.Put(59, SideWall(0));
  sheet.Put(60, SideWall(1));
  sheet.Put(204, SideWall(2));
  sheet.Put(206, Boards(0));
  sheet.Put(207, Boards(1));
  sheet.PutBlock(208, CarpetPicture());
  sheet.Put(240, ExitMat());
}

}  // namespace orvane::paint::tiles
