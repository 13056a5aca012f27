// The game's version.
#pragma once

#include "src/core/game.h"
#include "src/ui/controls.h"
#include "src/ui/screen.h"

namespace orvane {

class VersionScreen : public Screen {
 public:
  explicit VersionScreen(Game& game);

  PictureBox Icon;
  Label TitleLabel, VersionLabel, Description;
  CommandButton OKButton;
};

}  // namespace orvane
