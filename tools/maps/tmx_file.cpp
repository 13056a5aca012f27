#include "tools/maps/tmx_file.h"

#include <charconv>
#include <cstdint>
#include <stdexcept>

namespace orvane::maps {
namespace {

// The first element of a name at or after `from`, as the text between its angle brackets; empty
// when there is none. Enough for Tiled's files, which hold no comments and no CDATA.
std::string_view Element(std::string_view text, const std::string& name, size_t from = 0) {
  for (size_t at = text.find("<" + name, from); at != std::string_view::npos;
       at = text.find("<" + name, at + 1)) {
    const size_t behind = at + 1 + name.size();
    if (behind < text.size() && text.find_first_of(" \t\r\n/>", behind) == behind) {
      const size_t end = text.find('>', at);
      if (end == std::string_view::npos) break;
      return text.substr(at, end - at);
    }
  }
  return {};
}

std::string Attribute(std::string_view element, const std::string& name) {
  const size_t at = element.find(" " + name + "=\"");
  if (at == std::string_view::npos) return {};
  const size_t first = at + name.size() + 3;
  const size_t end = element.find('"', first);
  return end == std::string_view::npos ? std::string()
                                       : std::string(element.substr(first, end - first));
}

void Demand(bool holds, const char* what) {
  if (!holds) throw std::runtime_error(what);
}

size_t EndOf(std::string_view text, std::string_view element) {
  return static_cast<size_t>(element.data() - text.data()) + element.size() + 1;
}

uint32_t FirstId(std::string_view text) {
  const std::string_view tileset = Element(text, "tileset");
  Demand(!tileset.empty(), "the map has no tileset: add tiles.tsx");
  Demand(Element(text, "tileset", EndOf(text, tileset)).empty(),
         "the map has more than one tileset: keep tiles.tsx alone");
  const std::string first = Attribute(tileset, "firstgid");
  uint32_t value = 0;
  std::from_chars(first.data(), first.data() + first.size(), value);
  Demand(value > 0, "the tileset has no first number");
  return value;
}

std::string_view Data(std::string_view text) {
  const std::string_view layer = Element(text, "layer");
  Demand(!layer.empty(), "the map has no tile layer");
  Demand(Attribute(layer, "width") == "30" && Attribute(layer, "height") == "16",
         "the layer is not 30 x 16 tiles");
  Demand(Element(text, "layer", EndOf(text, layer)).empty(),
         "the map has more than one tile layer: merge them");
  const std::string_view data = Element(text, "data", EndOf(text, layer));
  Demand(!data.empty() && Attribute(data, "encoding") == "csv",
         "the tiles are not stored as CSV: set the map's Tile Layer Format to CSV");
  const size_t first = EndOf(text, data);
  const size_t end = text.find("</data>", first);
  Demand(end != std::string_view::npos, "the tiles do not end");
  return text.substr(first, end - first);
}

}  // namespace

std::string WriteTmx(const TileMap& map, std::string_view title) {
  std::string text =
      "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
      "<map version=\"1.8\" tiledversion=\"1.8.2\" orientation=\"orthogonal\""
      " renderorder=\"right-down\" width=\"30\" height=\"16\" tilewidth=\"16\" tileheight=\"16\""
      " infinite=\"0\" nextlayerid=\"2\" nextobjectid=\"1\">\n";
  if (!title.empty()) {
    text += " <properties>\n  <property name=\"place\" value=\"" + std::string(title) +
            "\"/>\n </properties>\n";
  }
  text +=
      " <tileset firstgid=\"1\" source=\"tiles.tsx\"/>\n"
      " <layer id=\"1\" name=\"tiles\" width=\"30\" height=\"16\">\n  <data encoding=\"csv\">\n";
  for (int row = 0; row < kMapRows; ++row) {
    for (int column = 0; column < kMapColumns; ++column) {
      const int code = map.At(column, row);
      if (code < 0 || code > kHighestTile) {
        throw std::runtime_error("the tileset has no tile " + std::to_string(code));
      }
      text += std::to_string(code);
      if (row < kMapRows - 1 || column < kMapColumns - 1) text += ',';
    }
    text += '\n';
  }
  text += "</data>\n </layer>\n</map>\n";
  return text;
}

TileMap ReadTmx(std::string_view text) {
  Demand(!Element(text, "map").empty(), "this is not a Tiled map");
  Demand(Attribute(Element(text, "map"), "infinite") != "1",
         "the map is infinite: switch that off");
  const uint32_t first_id = FirstId(text);
  const std::string_view data = Data(text);
  TileMap map;
  size_t at = 0;
  for (int cell = 0; cell < kCells; ++cell) {
    at = data.find_first_not_of(", \t\r\n", at);
    Demand(at != std::string_view::npos, "the layer has fewer than 480 tiles");
    uint32_t id = 0;
    const auto [end, error] = std::from_chars(data.data() + at, data.data() + data.size(), id);
    Demand(error == std::errc(), "a tile is not a number");
    at = static_cast<size_t>(end - data.data());
    // Tiled marks turned tiles in the highest bits, so they too are beyond the tileset.
    Demand(id == 0 || (id >= first_id && id - first_id < kHighestTile),
           "a tile is turned, or not of the tileset");
    map.Set(cell % kMapColumns, cell / kMapColumns,
            id == 0 ? 0 : static_cast<int>(id - first_id) + 1);
  }
  return map;
}

std::string ReadTmxTitle(std::string_view text) {
  for (std::string_view each = Element(text, "property"); !each.empty();
       each = Element(text, "property", EndOf(text, each))) {
    if (Attribute(each, "name") == "place") return Attribute(each, "value");
  }
  return {};
}

}  // namespace orvane::maps
