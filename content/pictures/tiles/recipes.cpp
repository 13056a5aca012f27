// The tile sheet as a recipe.
#include "content/pictures/tiles/families.h"
#include "tools/paint/recipe.h"

namespace orvane::paint {

void AddTileRecipes(std::vector<Recipe>& recipes) {
  recipes.push_back({"tiles", [] {
                       tiles::Sheet sheet;
                       tiles::PaintGrounds(sheet);
                       tiles::PaintPatches(sheet);
                       tiles::PaintWaters(sheet);
                       tiles::PaintMarsh(sheet);
                       tiles::PaintBridges(sheet);
                       tiles::PaintCliffs(sheet);
                       tiles::PaintTrees(sheet);
                       tiles::PaintHouse(sheet);
                       tiles::PaintRuins(sheet);
                       tiles::PaintShrine(sheet);
                       tiles::PaintRooms(sheet);
                       tiles::PaintLastStage(sheet);
                       tiles::PaintEvents(sheet);
                       tiles::PaintObjects(sheet);
                       return sheet.Picture;
                     }});
}

}  // namespace orvane::paint
