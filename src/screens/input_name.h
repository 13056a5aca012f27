// Name entry: the two heroes' names at the beginning of a game.
#pragma once

#include "src/core/game.h"
#include "src/ui/controls.h"
#include "src/ui/screen.h"

namespace orvane {

class InputNameScreen : public Screen {
 public:
  explicit InputNameScreen(Game& game);

  Label Label1, Label4, Label2;
  ControlArray<TextBox> Text1{"Text1"};
  Label Label3;
  PictureBox Picture1, Picture2;
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
