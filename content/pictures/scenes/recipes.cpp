#include "content/pictures/scenes/scenes.h"

namespace orvane::paint {

void AddSceneRecipes(std::vector<Recipe>& recipes) {
  recipes.push_back({"title", scene::PaintTitle});
  recipes.push_back({"ground_open", scene::PaintGroundOpen});
  recipes.push_back({"ground_waste", scene::PaintGroundWaste});
  recipes.push_back({"ground_lair", scene::PaintGroundLair});
  recipes.push_back({"ending_still", scene::PaintEndingStill});
}

}  // namespace orvane::paint
