// orvane-maps: the game's maps, to and from the map editor Tiled, and their checker.
#include <cstdio>
#include <exception>
#include <stdexcept>
#include <string>
#include <vector>

#include "tools/files.h"
#include "tools/maps/check.h"
#include "tools/maps/distances.h"
#include "tools/maps/picture.h"
#include "tools/maps/tileset.h"
#include "tools/maps/tmx_file.h"
#include "tools/maps/world.h"
#include "tools/paint/png_file.h"

namespace orvane::maps {
namespace {

using Words = std::vector<std::string>;

constexpr const char* kUsage =
    "orvane-maps build SOURCES MAPDATA      make every game map from its Tiled map\n"
    "orvane-maps check SOURCES              prove the rules by walking; exit 1 on a fault\n"
    "orvane-maps distances SOURCES          steps between the goals of each round\n"
    "orvane-maps to-dat MAP.tmx MAP.dat     one map for the game\n"
    "orvane-maps to-tmx MAP.dat MAP.tmx     one map for Tiled\n"
    "orvane-maps tileset TILES.csv SHEET TILES.tsx   the tileset, with SHEET as its picture\n"
    "orvane-maps picture SHEET.png MAP.tmx OUT.png [SCALE [marked]]   a map as a picture\n"
    "SOURCES is the folder of the Tiled maps and their tiles.csv.\n";

int Build(const Words& words) {
  const World world = ReadTiledWorld(words[1]);
  for (const auto& [place, map] : world.Maps) {
    WriteFile(words[2] + "/" + MapName(place) + ".dat", WriteDat(map));
  }
  return 0;
}

int Check(const Words& words) {
  int faults = 0;
  for (const std::string& fault :
       CatalogueFaults(ReadCatalogue(ReadFile(words[1] + "/tiles.csv")))) {
    std::printf("catalogue: %s\n", fault.c_str());
    ++faults;
  }
  const World world = ReadTiledWorld(words[1]);
  std::vector<Fault> found = CheckDrawing(world);
  for (const Journey& journey : AllJourneys()) {
    const Exploration exploration = Explore(world, journey);
    std::printf("%s: %zu places explored\n", journey.Name.c_str(), exploration.Stands.size());
    for (const Fault& fault : CheckJourney(world, exploration)) found.push_back(fault);
  }
  for (const Fault& fault : found) {
    std::printf("%s: %s\n", KindName(fault.Kind), fault.What.c_str());
    ++faults;
  }
  std::printf(faults == 0 ? "the maps keep every rule\n" : "%d faults\n", faults);
  return faults == 0 ? 0 : 1;
}

int Distances(const Words& words) {
  const World world = ReadTiledWorld(words[1]);
  for (const Journey& journey : AllJourneys()) {
    std::printf("%s\n", DistanceTable(world, Explore(world, journey)).c_str());
  }
  return 0;
}

int MakeTileset(const Words& words) {
  WriteFile(words[3], WriteTileset(ReadCatalogue(ReadFile(words[1])), words[2]));
  return 0;
}

int MakePicture(const Words& words) {
  const int scale = words.size() > 4 ? std::stoi(words[4]) : 2;
  if (scale < 1 || scale > 8) throw std::runtime_error("the scale must be 1 to 8");
  const bool marked = words.size() > 5 && words[5] == "marked";
  paint::WritePng(Picture(ReadTmx(ReadFile(words[2])), paint::ReadPng(words[1]), scale, marked),
                  words[3]);
  return 0;
}

int Run(const Words& words) {
  const std::string verb = words.empty() ? std::string() : words[0];
  if (verb == "build" && words.size() == 3) return Build(words);
  if (verb == "check" && words.size() == 2) return Check(words);
  if (verb == "distances" && words.size() == 2) return Distances(words);
  if (verb == "tileset" && words.size() == 4) return MakeTileset(words);
  if (verb == "picture" && words.size() >= 4 && words.size() <= 6) return MakePicture(words);
  if (verb == "to-dat" && words.size() == 3) {
    WriteFile(words[2], WriteDat(ReadTmx(ReadFile(words[1]))));
    return 0;
  }
  if (verb == "to-tmx" && words.size() == 3) {
    WriteFile(words[2], WriteTmx(ReadDat(ReadFile(words[1]))));
    return 0;
  }
  std::fputs(kUsage, stderr);
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
