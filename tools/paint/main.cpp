// orvane-paint: paints the game's picture sheets from their recipes.
//   orvane-paint --list                 names of all sheets
//   orvane-paint FOLDER [NAME ...]      paints all sheets, or those named, into FOLDER
//   orvane-paint --check FOLDER [NAME ...]  paints and compares with the files there; exit 1 on a
//   difference
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <string>
#include <vector>

#include "tools/paint/png_file.h"
#include "tools/paint/recipe.h"

namespace orvane::paint {
namespace {

// One grey level of difference is allowed, for renderers that round in their own way.
bool SameWithinOneLevel(const Image& one, const Image& other) {
  if (one.Width != other.Width || one.Height != other.Height) return false;
  for (size_t i = 0; i < one.Pixels.size(); ++i) {
    for (int shift = 0; shift <= 16; shift += 8) {
      const int a = static_cast<int>(one.Pixels[i] >> shift & 0xFF);
      const int b = static_cast<int>(other.Pixels[i] >> shift & 0xFF);
      if (std::abs(a - b) > 1) return false;
    }
  }
  return true;
}

bool Wanted(const std::string& name, const std::vector<std::string>& names) {
  if (names.empty()) return true;
  for (const std::string& each : names) {
    if (each == name) return true;
  }
  return false;
}

int Run(std::vector<std::string> words) {
  std::vector<Recipe> recipes;
  AddFigureRecipes(recipes);
  AddSceneRecipes(recipes);
  AddPanelRecipes(recipes);
  AddTileRecipes(recipes);
  AddEffectRecipes(recipes);
  if (!words.empty() && words[0] == "--list") {
    for (const Recipe& recipe : recipes) std::printf("%s\n", recipe.Name.c_str());
    return 0;
  }
  bool check = false;
  if (!words.empty() && words[0] == "--check") {
    check = true;
    words.erase(words.begin());
  }
  if (words.empty()) {
    std::fprintf(stderr, "usage: orvane-paint [--check] FOLDER [NAME ...] | --list\n");
    return 2;
  }
  const std::string folder = words[0];
  words.erase(words.begin());
  int differing = 0;
  for (const Recipe& recipe : recipes) {
    if (!Wanted(recipe.Name, words)) continue;
    const std::string file = folder + "/" + recipe.Name + ".png";
    const Image image = recipe.Paint();
    if (!check) {
      WritePng(image, file);
      std::printf("painted %s\n", file.c_str());
    } else if (!SameWithinOneLevel(image, ReadPng(file))) {
      std::printf("%s differs from its recipe\n", file.c_str());
      ++differing;
    }
  }
  return differing == 0 ? 0 : 1;
}

}  // namespace
}  // namespace orvane::paint

int main(int count, char** words) {
  try {
    return orvane::paint::Run(std::vector<std::string>(words + 1, words + count));
  } catch (const std::exception& error) {
    std::fprintf(stderr, "orvane-paint: %s\n", error.what());
    return 2;
  }
}
