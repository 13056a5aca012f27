#include "tools/maps/tile_map.h"

#include <stdexcept>

#include "src/base/error.h"
#include "src/core/map_file.h"

namespace orvane::maps {

std::string WriteDat(const TileMap& map) {
  std::string text;
  for (int column = 0; column < kMapColumns; ++column) {
    for (int row = 0; row < kMapRows; ++row) {
      if (row > 0) text += ',';
      text += std::to_string(map.At(column, row));
    }
    text += '\n';
  }
  return text;
}

TileMap ReadDat(std::string_view text) {
  MapTiles tiles;
  try {
    ReadMapText(text, "", tiles);
  } catch (const RunError& error) {
    throw std::runtime_error(error.Kind == ErrorKind::File
                                 ? "the map ends before its 480 numbers do"
                                 : "the map holds what is not a number of 16 bits");
  }
  return TileMap(tiles);
}

}  // namespace orvane::maps
