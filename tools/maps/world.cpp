#include "tools/maps/world.h"

#include <stdexcept>

#include "tools/maps/tmx_file.h"

namespace orvane::maps {
namespace {

const char* RoomName(Room room) {
  switch (room) {
    case Room::Fresh:
      return "Fresh";
    case Room::Book1:
      return "Book1";
    case Room::Book2:
      return "Book2";
    case Room::Book3:
      return "Book3";
    case Room::BookF:
      return "BookF";
    case Room::None:
      break;
  }
  return "";
}

template <typename Reader>
World ReadWorld(const std::string& folder, const char* extension, Reader read) {
  World world;
  for (const Place& place : AllPlaces()) {
    const std::string file = folder + "/" + FileName(place) + extension;
    const std::string text = ReadFile(file);
    try {
      world.maps[place] = read(text);
    } catch (const std::runtime_error& error) {
      throw std::runtime_error(file + ": " + error.what());
    }
  }
  return world;
}

}  // namespace

std::string FileName(const Place& place) {
  if (place.room != Room::None) return RoomName(place.room);
  return "map" + std::to_string(place.map_b) + "-" + std::to_string(place.map_a);
}

std::string PlaceName(const Place& place) {
  if (place.room != Room::None) return RoomName(place.room);
  return std::to_string(place.map_a) + "," + std::to_string(place.map_b);
}

std::vector<Place> AllPlaces() {
  std::vector<Place> places;
  for (int map_b = 1; map_b <= 5; ++map_b) {
    for (int map_a = 1; map_a <= 5; ++map_a) places.push_back({map_a, map_b});
  }
  places.push_back(kHiddenMap);
  places.push_back(kLastStage);
  for (const Room room : {Room::Fresh, Room::Book1, Room::Book2, Room::Book3, Room::BookF}) {
    places.push_back({0, 0, room});
  }
  return places;
}

const TileMap* World::Find(const Place& place) const {
  const auto found = maps.find(place);
  return found == maps.end() ? nullptr : &found->second;
}

World ReadTiledWorld(const std::string& folder) {
  return ReadWorld(folder, ".tmx", ReadTmx);
}

World ReadGameWorld(const std::string& folder) {
  return ReadWorld(folder, ".dat", ReadDat);
}

}  // namespace orvane::maps
