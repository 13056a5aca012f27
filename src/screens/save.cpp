#include "src/screens/save.h"

#include "src/core/save_file.h"

namespace orvane {

SaveScreen::SaveScreen(Game& game) : SaveDialog(game, "Save", "セーブ") {
  OKButton.OnClick = [this] { Save(); };
}

void SaveScreen::OnLoad() {
  ListFiles();
  ShowParty(game_.state.Round, game_.state.HeroName, game_.state.Level);
}

void SaveScreen::Save() {
  if (NothingChosen()) return;
  TheStage().Ask({"よろしいですか？", "ゲームのセーブ", BoxButtons::YesNo},
                 [this](BoxAnswer answer) {
                   if (answer == BoxAnswer::Yes) Write();
                 });
}

void SaveScreen::Write() {
  State& state = game_.state;
  state.SaveRound = state.Round;
  for (int hero = 0; hero < 2; ++hero) {
    state.SaveName[hero] = state.HeroName[hero];
    state.SaveLevel[hero] = state.Level[hero];
  }
  state.SaveMapA = state.MapA;
  state.SaveMapB = state.MapB;
  state.SaveX = state.HeroX;
  state.SaveY = state.HeroY;
  WriteSave(game_, Opened(), [this] {
    game_.Main.WalkTimer.SetEnabled(true);
    TheStage().Unload(*this);
  });
}

}  // namespace orvane
