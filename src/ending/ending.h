// The ending: credits scroll over a still picture until a last card stands.
#pragma once

#include "src/core/game.h"
#include "src/ui/controls.h"
#include "src/ui/screen.h"

namespace orvane {

class EndingScreen : public Screen {
 public:
  explicit EndingScreen(Game& game);

  PictureBox StillPicture;
  PictureBox CreditsSheet;
  Label Presenter;
  ControlArray<Label> CardLines{"Label2"};
  Timer ScrollTimer;

  Array<Int16, 11> CreditY;  // top edge of each strip on the screen
  Int16 CreditStep;          // pixels a tick
  Int16 CreditsDone;         // the last card stands

 protected:
  void OnActivate(bool entered) override;
  void OnPress() override;
  // As a press on the last card, at any time.
  void OnClose() override;

 private:
  void Tick();
  void DrawStrips();
  void ShowLastCard();
  void EndProgram();

  Game& game_;
  Surface scene_;
};

}  // namespace orvane
