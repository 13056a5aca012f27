// The catalogue of the map tiles, and the tileset that Tiled reads.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace orvane::maps {

struct TileEntry {
  int Code = 0;
  bool Walkable = false;
  std::string Group;
  std::string Name;
  std::string Note;
};

// Reads the catalogue: a head line "code,walkable,group,name,note", then the 240 codes in order.
// Throws std::runtime_error that names the line at fault.
std::vector<TileEntry> ReadCatalogue(std::string_view csv);

// The text of the Tiled tileset: each tile with its name, whether it can be walked on and what it
// does to the party, in words and as a shape that Tiled can draw over the map. `image` is the
// sheet's path as seen from the tileset's folder.
std::string WriteTileset(const std::vector<TileEntry>& tiles, const std::string& image);

// Where the catalogue and the game disagree about walking, one sentence each.
std::vector<std::string> CatalogueFaults(const std::vector<TileEntry>& tiles);

}  // namespace orvane::maps
