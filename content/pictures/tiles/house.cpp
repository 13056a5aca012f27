// A house of any width: two rows of roof, a wall with windows and a door.
#include <cmath>

#include "content/pictures/tiles/families.h"
#include "content/pictures/tiles/grounds.h"
#include "content/pictures/tiles/noise.h"
#include "content/pictures/tiles/palette.h"

namespace orvane::paint::tiles {
namespace {

// Three tiles wide and two high: a hipped roof of red tiles, its ridge near the top.
Image RoofPicture() {
  Image roof = Tiled(GrassTile(0), 48, 32);
  for (int y = 2; y < 32; ++y) {
    const int slant = (31 - y) / 3;  // the hips draw in upward
    for (int x = slant; x < 48 - slant; ++x) {
      const int from_west = x - slant;
      const int from_east = 47 - slant - x;
      Colour colour = 0;
      const int course = (y - 5) / 4;
      const int within = (y - 5) % 4;
      const int along = (x + course % 2 * 2) % 4;
      if (y < 5) {
        colour = kRoof[y == 2 ? 0 : y == 3 ? 5 : 4];
        if (x % 4 == 3 && y > 2) colour = kRoof[2];
      } else if (y > 29) {
        colour = y == 31 ? kWood[0] : kWood[2];
      } else {
        const double sun = y < 16 ? 0.6 : 0;
        int tone = within == 3 ? 1 : within == 0 ? 4 : 3;
        if (along == 3) tone -= 1;
        if (Hash(x / 4, course, 481) > 0.8) tone -= 1;
        colour = kRoof[static_cast<int>(tone + sun)];
      }
      if (from_west == 0 || from_east == 0) colour = kRoof[0];
      if (y > 4 && y < 30 && (from_west == 1 || from_west == 2)) colour = kRoof[5];
      if (y > 4 && y < 30 && (from_east == 1 || from_east == 2)) colour = kRoof[1];
      roof.At(x, y) = colour;
    }
  }
  return roof;
}

// Plaster between dark beams over a stone footing, in the shade of the eaves at the top.
Image Wall(bool west_end, bool east_end) {
  Image wall = Fill(kTileSize, kTileSize, [&](int x, int y) -> Colour {
    if (y < 3) return Shaded(0xD8C09C, y == 0 ? 1.0 : 0.8);
    if (y == 15) return kStone[0];
    if (y > 11) {
      const bool joint = y == 12 || (x + (y > 13 ? 3 : 0)) % 6 == 0;
      return joint ? kStone[1] : kStone[y == 13 ? 3 : 2];
    }
    return Noise(x / 3.0, y / 3.0, 0, 487) < 0.35 ? 0xC4A880 : 0xD8C09C;
  });
  Box(wall, 0, 11, kTileSize, 1, kWood[1]);
  if (west_end) {
    Box(wall, 0, 0, 1, 16, kWood[0]);
    Box(wall, 1, 0, 2, 12, kWood[2]);
    Box(wall, 3, 3, 1, 9, kWood[1]);
  }
  if (east_end) {
    Box(wall, 15, 0, 1, 16, kWood[0]);
    Box(wall, 13, 0, 2, 12, kWood[2]);
    Box(wall, 12, 3, 1, 9, kWood[1]);
  }
  return wall;
}

Image WindowWall() {
  Image wall = Wall(false, false);
  Stamp(wall, 2, 2,
        {"kkkkkkkkkkkk", "kwwwwkkwwwwk", "kwbLbkkbLbwk", "kwLbbkkLbbwk", "kwkkkkkkkkwk",
         "kwbbdkkbbdwk", "kwbddkkbddwk", "kwwwwkkwwwwk", "llllllllllll", "dddddddddddd"},
        {{'k', kWood[1]},
         {'w', kWood[3]},
         {'b', 0x5888B0},
         {'L', 0xC8ECF8},
         {'d', 0x304C78},
         {'l', kWood[4]}});
  return wall;
}

Image Door() {
  Image wall = Wall(false, false);
  Stamp(wall, 1, 1,
        {"...kkkkkkkk...", "..klllllllmk..", ".klkkkkkkkkmk.", ".kkdmmdmmddkk.", "klkdmldmlddkmk",
         "klkdmldmlddkmk", "klkiiiiiiiikmk", "klkdmldmlddkmk", "klkdmldmlyykmk", "klkdmldmlyokmk",
         "klkdmldmlddkmk", "klkiiiiiiiikmk", "klkdmldmlddkmk", "ssssssssssssss", "tttttttttttttt"},
        {{'k', kWood[0]},
         {'l', kStone[4]},
         {'m', kWood[3]},
         {'d', kWood[2]},
         {'i', 0x3C3848},
         {'y', kGold[3]},
         {'o', kGold[1]},
         {'s', kStone[5]},
         {'t', kStone[3]}});
  return wall;
}

}  // namespace

void PaintHouse(Sheet& sheet) {
  const Image roof = RoofPicture();
  for (int column = 0; column < 3; ++column) {
    sheet.Put(22 + column, roof, column * kTileSize, 0);
    sheet.Put(15 + column, roof, column * kTileSize, kTileSize);
  }
  sheet.Put(45, Wall(true, false));
  sheet.Put(46, WindowWall());
  sheet.Put(47, Door());
  sheet.Put(48, Wall(false, true));
}

}  // namespace orvane::paint::tiles
