#include "src/screens/settings.h"

#include "src/core/sheets.h"

namespace orvane {

SettingsScreen::SettingsScreen(Game& game)
    : Screen(game.stage, "Custom", "環境設定", 393, 209),
      NamesFrame(*this, "Frame2", {16, 8, 265, 105}, {"名前の変更"}),
      SpeedFrame(*this, "Frame1", {16, 120, 265, 81}, {"バトルスピード"}),
      BattleSpeed(SpeedFrame, "Slider1", {8, 40, 241, 33}, {1, 30, 15, 1, 5}),
      FastLabel(SpeedFrame, "Label1", {16, 24, 33, 17}, {"速い"}),
      SlowLabel(SpeedFrame, "Label2", {224, 24, 33, 17}, {"遅い"}),
      ChangeButton(*this, "Command1", {296, 16, 81, 33}, {"変更"}),
      game_(game) {
  Names.Add(0, NamesFrame, Place{64, 24, 129, 18});
  Names.Add(1, NamesFrame, Place{72, 72, 129, 18});
  Faces.Add(0, NamesFrame, Place{8, 16, 48, 48}, PictureValues{Sheet("face_man")});
  Faces.Add(1, NamesFrame, Place{208, 48, 48, 48}, PictureValues{Sheet("face_woman")});
  ChangeButton.OnClick = [this] { Apply(); };
}

void SettingsScreen::OnActivate(bool) {
  for (int hero = 0; hero < 2; ++hero) Names[hero].Text = game_.state.HeroName[hero].Trimmed();
}

void SettingsScreen::OnUnload() {
  game_.Main.WalkTimer.SetEnabled(true);
}

void SettingsScreen::Apply() {
  for (int hero = 0; hero < 2; ++hero) game_.state.HeroName[hero] = Names[hero].Text;
  game_.links.SetBattleInterval(BattleSpeed.Value);
  TheStage().Unload(*this);
}

}  // namespace orvane
