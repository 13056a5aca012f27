#include "src/screens/settings.h"

#include "src/core/sheets.h"

namespace orvane {

CustomScreen::CustomScreen(Game& game)
    : Screen(game.stage, "Custom", "環境設定", 393, 209),
      Frame2(*this, "Frame2", {16, 8, 265, 105}, {"名前の変更"}),
      Frame1(*this, "Frame1", {16, 120, 265, 81}, {"バトルスピード"}),
      Slider1(Frame1, "Slider1", {8, 40, 241, 33}, {1, 30, 15, 1, 5}),
      Label1(Frame1, "Label1", {16, 24, 33, 17}, {"速い"}),
      Label2(Frame1, "Label2", {224, 24, 33, 17}, {"遅い"}),
      Command1(*this, "Command1", {296, 16, 81, 33}, {"変更"}),
      game_(game) {
  Text1.Add(0, Frame2, Place{64, 24, 129, 18});
  Text1.Add(1, Frame2, Place{72, 72, 129, 18});
  Picture1.Add(0, Frame2, Place{8, 16, 48, 48}, PictureValues{Sheet("face_man")});
  Picture1.Add(1, Frame2, Place{208, 48, 48, 48}, PictureValues{Sheet("face_woman")});
  Command1.OnClick = [this] { Apply(); };
}

void CustomScreen::OnActivate(bool) {
  for (int hero = 0; hero < 2; ++hero) Text1[hero].Text = game_.state.HeroName[hero].Trimmed();
}

void CustomScreen::OnUnload() {
  game_.Main.Timer1.SetEnabled(true);
}

void CustomScreen::Apply() {
  for (int hero = 0; hero < 2; ++hero) game_.state.HeroName[hero] = Text1[hero].Text;
  game_.links.SetBattleInterval(Slider1.Value);
  TheStage().Unload(*this);
}

}  // namespace orvane
