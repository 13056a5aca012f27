#include "tools/maps/picture.h"

#include "src/field/tiles.h"

namespace orvane::maps {
namespace {

constexpr int kTile = 16;
constexpr int kTilesInARow = 30;

uint32_t Darkened(uint32_t colour) {
  return (colour >> 1 & 0x7F7F7F) | 0x400000;
}

}  // namespace

paint::Image Picture(const TileMap& map, const paint::Image& sheet, int scale, bool marked) {
  paint::Image picture(kMapColumns * kTile * scale, kMapRows * kTile * scale, 0);
  for (int y = 0; y < picture.Height; ++y) {
    for (int x = 0; x < picture.Width; ++x) {
      const int pixel_x = x / scale;
      const int pixel_y = y / scale;
      const int code = map.At(pixel_x / kTile, pixel_y / kTile);
      if (code < 1 || code > kHighestTile) continue;
      const uint32_t colour = sheet.At((code - 1) % kTilesInARow * kTile + pixel_x % kTile,
                                       (code - 1) / kTilesInARow * kTile + pixel_y % kTile);
      picture.At(x, y) = marked && !IsWalkable(code) ? Darkened(colour) : colour;
    }
  }
  return picture;
}

}  // namespace orvane::maps
