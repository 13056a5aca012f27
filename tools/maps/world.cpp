#include "tools/maps/world.h"

#include <stdexcept>

#include "tools/files.h"
#include "tools/maps/tmx_file.h"

namespace orvane::maps {

std::string PlaceName(const MapId& place) {
  if (place.Inside != kNoRoom) return MapName(place);
  return std::to_string(place.MapA) + "," + std::to_string(place.MapB);
}

std::vector<MapId> AllPlaces() {
  std::vector<MapId> places;
  for (int map_b = 1; map_b <= 5; ++map_b) {
    for (int map_a = 1; map_a <= 5; ++map_a) places.push_back({map_a, map_b});
  }
  places.push_back(kHiddenMap);
  places.push_back(kLastStage);
  for (const Room& room : {kSpringRoom, BookRoom(1), BookRoom(2), BookRoom(3), kLastBookRoom}) {
    places.push_back({0, 0, room});
  }
  return places;
}

const TileMap* World::Find(const MapId& place) const {
  const auto found = Maps.find(place);
  return found == Maps.end() ? nullptr : &found->second;
}

World ReadTiledWorld(const std::string& folder) {
  World world;
  for (const MapId& place : AllPlaces()) {
    const std::string file = folder + "/" + MapName(place) + ".tmx";
    const std::string text = ReadFile(file);
    try {
      world.Maps[place] = ReadTmx(text);
    } catch (const std::runtime_error& error) {
      throw std::runtime_error(file + ": " + error.what());
    }
  }
  return world;
}

}  // namespace orvane::maps
