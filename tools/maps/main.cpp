// orvane-maps: the game's maps, to and from the map editor Tiled.
//   orvane-maps build SOURCES MAPDATA   makes every game map from its Tiled map
//   orvane-maps to-dat MAP.tmx MAP.dat  one map for the game
//   orvane-maps to-tmx MAP.dat MAP.tmx  one map for Tiled
#include <cstdio>
#include <exception>
#include <string>
#include <vector>

#include "tools/maps/tmx_file.h"
#include "tools/maps/world.h"

namespace orvane::maps {
namespace {

int Build(const std::string& sources, const std::string& folder) {
  const World world = ReadTiledWorld(sources);
  for (const auto& [place, map] : world.maps) {
    WriteFile(folder + "/" + FileName(place) + ".dat", WriteDat(map));
  }
  return 0;
}

int Run(const std::vector<std::string>& words) {
  if (words.size() == 3 && words[0] == "build") return Build(words[1], words[2]);
  if (words.size() == 3 && words[0] == "to-dat") {
    WriteFile(words[2], WriteDat(ReadTmx(ReadFile(words[1]))));
    return 0;
  }
  if (words.size() == 3 && words[0] == "to-tmx") {
    WriteFile(words[2], WriteTmx(ReadDat(ReadFile(words[1]))));
    return 0;
  }
  std::fprintf(stderr,
               "usage: orvane-maps build SOURCES MAPDATA | to-dat MAP.tmx MAP.dat |"
               " to-tmx MAP.dat MAP.tmx\n");
  return 2;
}

}  // namespace
}  // namespace orvane::maps

int main(int count, char** words) {
  try {
    return orvane::maps::Run(std::vector<std::string>(words + 1, words + count));
  } catch (const std::exception& error) {
    std::fprintf(stderr, "orvane-maps: %s\n", error.what());
    return 2;
  }
}
