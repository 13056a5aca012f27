// All the maps of the game: the grid, the hidden map, the last stage and the rooms.
#pragma once

#include <map>
#include <string>
#include <tuple>
#include <vector>

#include "tools/maps/tile_map.h"

namespace orvane::maps {

// Which tiles stand in memory: a map of the grid or one of the rooms behind doors.
enum class Room { None, Fresh, Book1, Book2, Book3, BookF };

// A map of the grid by its column (MapA) and row (MapB), or a room, whose column and row are 0.
struct Place {
  int map_a = 0;
  int map_b = 0;
  Room room = Room::None;
  bool operator==(const Place&) const = default;
  bool operator<(const Place& other) const {
    return std::tie(map_a, map_b, room) < std::tie(other.map_a, other.map_b, other.room);
  }
};

constexpr Place kStartMap{3, 3};
constexpr Place kDragonMap{4, 1};
constexpr Place kLastStage{0, 0};
constexpr Place kHiddenMap{6, 4};
constexpr Place kSwappedMap{5, 4};  // the map in whose stead the hidden one is shown

// A place's file without folder and extension: "map<MapB>-<MapA>", "Fresh", "Book1", ...
std::string FileName(const Place& place);

// A place as people read it: "4,1" or the room's name.
std::string PlaceName(const Place& place);

// Every place that the game can ask for, in the order of their names in the grid, then the rooms.
std::vector<Place> AllPlaces();

// The maps of the game by place.
struct World {
  std::map<Place, TileMap> maps;

  // The tiles of a place, or null when there is no such map.
  const TileMap* Find(const Place& place) const;
};

// Reads all places from <folder>/<name>.tmx. Throws std::runtime_error that names the file at
// fault.
World ReadTiledWorld(const std::string& folder);

// Reads all places from <folder>/<name>.dat. Throws std::runtime_error that names the file at
// fault.
World ReadGameWorld(const std::string& folder);

}  // namespace orvane::maps
