// The list of all figure sheets: heroes and enemies.
#include <algorithm>
#include <array>
#include <cstdio>
#include <utility>

#include "content/pictures/figures/figures.h"

namespace orvane::paint {
namespace {

// Stands in for a figure that has no model yet: one lit ball in its cell.
void PaintBall(Image& sheet, int x0, int y0, int mask_x, int width, int height, uint32_t colour) {
  for (int y = 2; y < height - 2; ++y) {
    for (int x = 2; x < width - 4; ++x) {
      const double u = (x + 0.5 - width * 0.5) / (width * 0.5 - 4);
      const double v = (y + 0.5 - height * 0.5) / (height * 0.5 - 2);
      if (u * u + v * v > 1) continue;
      const uint32_t shade = u + v > 0.3 ? (colour >> 1 & 0x7F7F7F) : colour;
      sheet.At(x0 + x, y0 + y) = shade;
      if (mask_x + x < sheet.width) sheet.At(mask_x + x, y0 + y) = 0xFFFFFF;
    }
  }
}

Image BallSheet(int width, int height, int cell, uint32_t colour) {
  Image sheet(width, height);
  for (int y = 0; y < height; ++y) {
    for (int x = cell; x < width; ++x) sheet.At(x, y) = 0;
  }
  PaintBall(sheet, 0, 0, cell, cell, height, colour);
  return sheet;
}

constexpr std::array<std::pair<int, Image (*)()>, 14> kModels{{{3, PaintMoonEnvoy},
                                                               {4, PaintGreenRoper},
                                                               {9, PaintStarEnvoy},
                                                               {10, PaintManEater},
                                                               {11, PaintHannya},
                                                               {5, PaintSlime},
                                                               {6, PaintSpider},
                                                               {7, PaintNakedFiend},
                                                               {8, PaintSoldier},
                                                               {12, PaintBat},
                                                               {14, PaintAngel},
                                                               {15, PaintDeathRoper},
                                                               {16, PaintMerman},
                                                               {17, PaintHornedBeast}}};

}  // namespace

void AddFigureRecipes(std::vector<Recipe>& recipes) {
  recipes.push_back({"hero_man", PaintHeroMan});
  recipes.push_back({"hero_woman", PaintHeroWoman});
  for (int i = 0; i <= 19; ++i) {
    const int row = i == 19 ? 100 : i;
    char name[16];
    std::snprintf(name, sizeof name, "enemy_%02d", row);
    const auto model = std::find_if(kModels.begin(), kModels.end(),
                                    [row](const auto& entry) { return entry.first == row; });
    if (model != kModels.end()) {
      recipes.push_back({name, model->second});
      continue;
    }
    const bool big = row == 13 || row == 18;
    const int cell = row < 3 ? 128 : big ? 160 : 64;
    const int width = cell * 2 + (row == 13 ? -2 : row == 7 ? -1 : row == 12 || row == 100 ? 1 : 0);
    const int height = row < 3 ? 192 : big ? 240 : row == 6 ? 50 : 64;
    const uint32_t colour = 0x406080u + static_cast<uint32_t>(i) * 0x060502u;
    recipes.push_back(
        {name, [width, height, cell, colour] { return BallSheet(width, height, cell, colour); }});
  }
}

}  // namespace orvane::paint
