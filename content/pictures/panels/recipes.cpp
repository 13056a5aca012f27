#include <string>

#include "content/pictures/panels/panels.h"

namespace orvane::paint {

void AddPanelRecipes(std::vector<Recipe>& recipes) {
  recipes.push_back({"message_window", panel::PaintMessageWindow});
  recipes.push_back({"status_panel", panel::PaintStatusPanel});
  recipes.push_back({"name_panel_hero", panel::PaintHeroName});
  recipes.push_back({"name_panel_enemy", panel::PaintEnemyName});
  recipes.push_back({"victory_panel", panel::PaintVictoryPanel});
  recipes.push_back({"face_man", panel::PaintFaceMan});
  recipes.push_back({"face_woman", panel::PaintFaceWoman});
  recipes.push_back({"credits", panel::PaintCredits});
  recipes.push_back({"credits_en", panel::PaintEnglishCredits});
  for (const int size : {16, 24, 32, 48, 64, 128, 256}) {
    recipes.push_back({"icon_" + std::to_string(size), [size] { return panel::PaintIcon(size); }});
  }
}

}  // namespace orvane::paint
