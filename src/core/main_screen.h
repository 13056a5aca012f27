// The one window that is always there: the title, the field and the menu bar.
#pragma once

#include "src/ui/controls.h"
#include "src/ui/screen.h"
#include "src/ui/stage.h"

namespace orvane {

struct Game;

class MainScreen : public Screen {
 public:
  MainScreen(Stage& stage, Game& game);

  PictureBox Picture1;  // the title picture, then the field
  Label Label4;         // the title's shadow
  Label Label1;
  Label Label3;
  Label Label2;
  CommandButton Command1;
  PictureBox Picture5;  // the message window
  ControlArray<Label> Label6{"Label6"};
  Label Label8;
  PictureBox Picture9;  // the speaker's face
  Label Label7;
  PictureBox Picture6;  // the status panel
  PictureBox Picture7;
  PictureBox Picture8;
  ControlArray<Label> Label5{"Label5"};
  PictureBox Picture2;  // sheets: the man, the woman, the tiles
  PictureBox Picture3;
  PictureBox Picture4;
  MenuItem m1, m11, m12, m13, m14;
  MenuItem m2, m21, m22;
  MenuItem m3, m32, m33, m34, m35;
  Timer Timer1;  // the field frame
  Timer Timer2;  // a pickup's message
  Timer Timer3;  // a story scene

 protected:
  void OnLoad() override;
  void OnActivate(bool entered) override;
  void OnClose() override;

 private:
  Game& game_;
};

}  // namespace orvane
