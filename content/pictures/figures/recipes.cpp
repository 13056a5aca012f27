// The list of all figure sheets: heroes and enemies.
#include "content/pictures/figures/figures.h"

namespace orvane::paint {

void AddFigureRecipes(std::vector<Recipe>& recipes) {
  recipes.push_back({"hero_man", PaintHeroMan});
  recipes.push_back({"hero_woman", PaintHeroWoman});
  recipes.push_back({"enemy_00", PaintSeaDragon});
  recipes.push_back({"enemy_01", PaintFireDragon});
  recipes.push_back({"enemy_02", PaintStrengthDragon});
  recipes.push_back({"enemy_03", PaintMoonEnvoy});
  recipes.push_back({"enemy_04", PaintGreenRoper});
  recipes.push_back({"enemy_05", PaintSlime});
  recipes.push_back({"enemy_06", PaintSpider});
  recipes.push_back({"enemy_07", PaintNakedFiend});
  recipes.push_back({"enemy_08", PaintSoldier});
  recipes.push_back({"enemy_09", PaintStarEnvoy});
  recipes.push_back({"enemy_10", PaintManEater});
  recipes.push_back({"enemy_11", PaintHannya});
  recipes.push_back({"enemy_12", PaintBat});
  recipes.push_back({"enemy_13", PaintBoneDragon});
  recipes.push_back({"enemy_14", PaintAngel});
  recipes.push_back({"enemy_15", PaintDeathRoper});
  recipes.push_back({"enemy_16", PaintMerman});
  recipes.push_back({"enemy_17", PaintHornedBeast});
  recipes.push_back({"enemy_18", PaintDivineDragon});
  recipes.push_back({"enemy_100", PaintSeal});
}

}  // namespace orvane::paint
