// All the maps of the game: the grid, the hidden map, the last stage and the rooms.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "src/core/map.h"
#include "tools/maps/tile_map.h"

namespace orvane::maps {

constexpr MapId kStartMap{3, 3};
constexpr MapId kDragonMap{4, 1};
constexpr MapId kLastStage{0, 0};
constexpr MapId kHiddenMap{6, 4};
constexpr MapId kSwappedMap{5, 4};  // the map in whose stead the hidden one is shown

// A place as people read it: "4,1" or the room's name.
std::string PlaceName(const MapId& place);

// Every place that the game can ask for, in the order of their names in the grid, then the rooms.
std::vector<MapId> AllPlaces();

// The maps of the game by place.
struct World {
  std::map<MapId, TileMap> Maps;

  // The tiles of a place, or null when there is no such map.
  const TileMap* Find(const MapId& place) const;
};

// Reads all places from <folder>/<name>.tmx. Throws std::runtime_error that names the file at
// fault.
World ReadTiledWorld(const std::string& folder);

}  // namespace orvane::maps
