// Maps as files of the map editor Tiled.
#pragma once

#include <string>
#include <string_view>

#include "tools/maps/tile_map.h"

namespace orvane::maps {

// The text of a Tiled map with one layer of the shared tileset "tiles.tsx", laid out as Tiled
// itself saves it. `title` becomes the map's property "place" and is left out when empty. Throws
// std::runtime_error on a code that the tileset does not have.
std::string WriteTmx(const TileMap& map, std::string_view title = "");

// Reads a Tiled map: 30 x 16 tiles, one layer, data as CSV, one tileset. Throws std::runtime_error
// that says what to change in Tiled when the map is of any other make, or has a turned tile.
TileMap ReadTmx(std::string_view text);

// The property "place" of a Tiled map, empty when it has none.
std::string ReadTmxTitle(std::string_view text);

}  // namespace orvane::maps
