// Settings: the heroes' names and the speed of battles.
#pragma once

#include "src/core/game.h"
#include "src/ui/controls.h"
#include "src/ui/screen.h"

namespace orvane {

class CustomScreen : public Screen {
 public:
  explicit CustomScreen(Game& game);

  Frame Frame2;
  ControlArray<TextBox> Text1{"Text1"};
  ControlArray<PictureBox> Picture1{"Picture1"};
  Frame Frame1;
  Slider Slider1;  // ms of the battle's action timer
  Label Label1, Label2;
  CommandButton Command1;

 protected:
  void OnActivate(bool entered) override;
  void OnUnload() override;

 private:
  void Apply();

  Game& game_;
};

}  // namespace orvane
