// What every picture recipe gives to orvane-paint: a sheet's file name and the way to paint it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace orvane::paint {

// A finished sheet: 24-bit colours as 0xRRGGBB, a row after the other from the top.
struct Image {
  Image() = default;
  Image(int wide, int high, uint32_t colour = 0xFFFFFF)
      : Width(wide),
        Height(high),
        Pixels(static_cast<size_t>(wide) * static_cast<size_t>(high), colour) {}

  // The pixel at (x, y), which must lie inside.
  uint32_t& At(int x, int y) {
    return Pixels[static_cast<size_t>(y) * static_cast<size_t>(Width) + static_cast<size_t>(x)];
  }
  uint32_t At(int x, int y) const {
    return Pixels[static_cast<size_t>(y) * static_cast<size_t>(Width) + static_cast<size_t>(x)];
  }

  int Width = 0;
  int Height = 0;
  std::vector<uint32_t> Pixels;
};

// One sheet of the game: its file below content/pictures/sheets, without the ".png", and its
// painter. A painter is deterministic: the same pixels on every run and machine.
struct Recipe {
  std::string Name;
  std::function<Image()> Paint;
};

// Each family of pictures adds its recipes; the definitions stand in content/pictures/<family>/.
void AddFigureRecipes(std::vector<Recipe>& recipes);  // heroes and enemies
void AddSceneRecipes(std::vector<Recipe>& recipes);   // grounds of battles, title, ending
void AddPanelRecipes(std::vector<Recipe>& recipes);   // faces, panels, icons, credit strips
void AddTileRecipes(std::vector<Recipe>& recipes);    // map tiles
void AddEffectRecipes(std::vector<Recipe>& recipes);  // effect cells

}  // namespace orvane::paint
