#include "src/screens/load.h"

#include "src/core/new_game.h"
#include "src/core/save_file.h"

namespace orvane {

LoadScreen::LoadScreen(Game& game) : SaveDialog(game, "Load", "ロード") {
  OKButton.OnClick = [this] { Load(); };
}

void LoadScreen::ReadChosen() {
  const auto bytes = game_.services.Files.Read(Opened());
  if (!bytes) throw RunError(ErrorKind::File, Opened());
  UnpackRecord(*bytes, game_.state);
}

void LoadScreen::Open() {
  SaveDialog::Open();
  ReadChosen();
  ShowParty(game_.state.SaveRound, game_.state.SaveName, game_.state.SaveLevel);
}

void LoadScreen::Load() {
  State& state = game_.state;
  if (NothingChosen()) return;
  ReadChosen();
  state.GameStarted = kTrue;
  state.OpeningDone = kTrue;
  state.MapA = state.SaveMapA;
  state.MapB = state.SaveMapB;
  state.HeroX = state.SaveX;
  state.HeroY = state.SaveY;
  game_.Main.BeginButton.Visible = false;
  game_.Main.LoadItem.Enabled = false;
  TheStage().Unload(*this);
}

void LoadScreen::OnUnload() {
  // Left without loading: the preview is undone.
  if (game_.state.GameStarted == kFalse) NewGameDefaults(game_);
  Leave();
}

}  // namespace orvane
