// The game's version.
#pragma once

#include "src/core/game.h"
#include "src/platform/controls.h"
#include "src/platform/screen.h"

namespace orvane {

class VersionScreen : public Screen {
 public:
  explicit VersionScreen(Game& game);

  PictureBox picIcon;
  Label lblTitle, lblVersion, lblDescription;
  CommandButton cmdOK;
};

}  // namespace orvane
