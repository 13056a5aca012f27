// Name entry: the two heroes' names at the beginning of a game.
#pragma once

#include "src/core/game.h"
#include "src/ui/controls.h"
#include "src/ui/screen.h"

namespace orvane {

class InputNameScreen : public Screen {
 public:
  explicit InputNameScreen(Game& game);

  Label Request, LengthHint, ManCaption;
  ControlArray<TextBox> Names{"Text1"};
  Label WomanCaption;
  PictureBox ManFace, WomanFace;
  CommandButton OKButton, CancelButton;

 protected:
  // Opening the dialog sets up a new game, whether or not the player goes on.
  void OnActivate(bool entered) override;
  void OnUnload() override;

 private:
  void Accept();

  Game& game_;
};

}  // namespace orvane
