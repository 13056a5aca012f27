// Settings: the heroes' names and the speed of battles.
#pragma once

#include "src/core/game.h"
#include "src/ui/controls.h"
#include "src/ui/screen.h"

namespace orvane {

class SettingsScreen : public Screen {
 public:
  explicit SettingsScreen(Game& game);

  Frame NamesFrame;
  ControlArray<TextBox> Names{"Text1"};
  ControlArray<PictureBox> Faces{"Picture1"};
  Frame SpeedFrame;
  Slider BattleSpeed;  // ms of the battle's action timer
  Label FastLabel, SlowLabel;
  CommandButton ChangeButton;

 protected:
  void OnActivate(bool entered) override;
  void OnUnload() override;

 private:
  void Apply();

  Game& game_;
};

}  // namespace orvane
