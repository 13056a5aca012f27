#include "tools/maps/tileset.h"

#include <stdexcept>

#include "src/field/tiles.h"
#include "tools/maps/tile_map.h"

namespace orvane::maps {
namespace {

constexpr std::string_view kHead = "code,walkable,group,name,note";

// The text up to the next comma or the line's end, taken off the front of the line.
std::string NextField(std::string_view& line) {
  const size_t end = line.find(',');
  std::string field(line.substr(0, end));
  line = end == std::string_view::npos ? std::string_view() : line.substr(end + 1);
  return field;
}

TileEntry ReadEntry(std::string_view line, int code) {
  const std::string whole(line);
  const std::string number = NextField(line);
  const std::string walkable = NextField(line);
  if (number != std::to_string(code) || (walkable != "0" && walkable != "1")) {
    throw std::runtime_error("expected tile " + std::to_string(code) + " in \"" + whole + "\"");
  }
  TileEntry entry{code, walkable == "1", NextField(line), NextField(line), std::string(line)};
  if (entry.Name.empty()) throw std::runtime_error("tile " + number + " has no name");
  return entry;
}

std::string EventOf(int code) {
  if (code == kChest) return "chest";
  if (code == kRecovery) return "recovery point";
  if (IsBookChest(code)) return "book chest";
  if (IsRoomDoor(code)) return "door to the spring room or the round's book room";
  if (code == kLastBookDoor) return "door to the room of the last book";
  if (IsWasteGround(code)) return "battles on the ground of the wastes";
  return {};
}

// Tiled draws these shapes over the map with "Show Tile Collision Shapes": a square where one
// cannot walk, a circle where something happens.
std::string Shape(const TileEntry& tile, bool event) {
  if (tile.Walkable && !event) return {};
  const std::string place =
      tile.Walkable ? "x=\"3\" y=\"3\" width=\"10\" height=\"10\">\n    <ellipse/>\n   </object>\n"
                    : "x=\"1\" y=\"1\" width=\"14\" height=\"14\"/>\n";
  return "  <objectgroup draworder=\"index\" id=\"2\">\n   <object id=\"1\" " + place +
         "  </objectgroup>\n";
}

std::string Property(const std::string& name, const std::string& type, const std::string& value) {
  return "   <property name=\"" + name + "\"" + type + " value=\"" + value + "\"/>\n";
}

}  // namespace

std::vector<TileEntry> ReadCatalogue(std::string_view csv) {
  std::vector<TileEntry> tiles;
  bool head = false;
  while (!csv.empty()) {
    const size_t end = csv.find('\n');
    std::string_view line = csv.substr(0, end);
    csv = end == std::string_view::npos ? std::string_view() : csv.substr(end + 1);
    if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
    if (line.empty()) continue;
    if (head) {
      tiles.push_back(ReadEntry(line, static_cast<int>(tiles.size()) + 1));
    } else if (line == kHead) {
      head = true;
    } else {
      throw std::runtime_error("the catalogue must begin with " + std::string(kHead));
    }
  }
  if (tiles.size() != kHighestTile) throw std::runtime_error("the catalogue must name 240 tiles");
  return tiles;
}

std::string WriteTileset(const std::vector<TileEntry>& tiles, const std::string& image) {
  std::string text =
      "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
      "<tileset version=\"1.8\" tiledversion=\"1.8.2\" name=\"tiles\" tilewidth=\"16\""
      " tileheight=\"16\" tilecount=\"240\" columns=\"30\">\n"
      " <image source=\"" +
      image + "\" width=\"480\" height=\"128\"/>\n";
  for (const TileEntry& tile : tiles) {
    const std::string event = EventOf(tile.Code);
    text += " <tile id=\"" + std::to_string(tile.Code - 1) + "\">\n  <properties>\n";
    text += Property("code", " type=\"int\"", std::to_string(tile.Code));
    if (!event.empty()) text += Property("event", "", event);
    text += Property("name", "", tile.Name);
    text += Property("walkable", " type=\"bool\"", tile.Walkable ? "true" : "false");
    text += "  </properties>\n" + Shape(tile, !event.empty()) + " </tile>\n";
  }
  return text + "</tileset>\n";
}

std::vector<std::string> CatalogueFaults(const std::vector<TileEntry>& tiles) {
  std::vector<std::string> faults;
  for (const TileEntry& tile : tiles) {
    if (tile.Walkable == IsWalkable(tile.Code)) continue;
    faults.push_back("tile " + std::to_string(tile.Code) + " \"" + tile.Name +
                     (tile.Walkable ? "\" blocks in the game" : "\" can be walked on in the game"));
  }
  return faults;
}

}  // namespace orvane::maps
