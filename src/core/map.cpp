#include "src/core/map.h"

namespace orvane {

bool IsWasteGround(int tile) {
  return tile == 13 || tile == 14 || tile == 19 || tile == 234;
}

std::string MapName(const MapId& map) {
  switch (map.Inside.What) {
    case Room::Kind::Spring:
      return "Fresh";
    case Room::Kind::Book:
      return "Book" + std::to_string(map.Inside.Round);
    case Room::Kind::LastBook:
      return "BookF";
    case Room::Kind::Nowhere:
      break;
  }
  return "map" + std::to_string(map.MapB) + "-" + std::to_string(map.MapA);
}

std::string MapFile(const MapId& map) {
  return "Mapdata/" + MapName(map) + ".dat";
}

}  // namespace orvane
