#include "src/core/game.h"

namespace orvane {

void Warn(Game& game, const std::string& text) {
  game.stage.ShowBox(text, "警告", BoxButtons::Ok);
}

}  // namespace orvane
