#include "src/screens/save_dialog.h"

#include "src/core/sheets.h"

namespace orvane {

SaveDialog::SaveDialog(Game& game, const std::string& name, const std::string& verb)
    : Screen(game.stage, name, "", 241, 233),
      Request(*this, "Label1", {8, 8, 185, 17}, {verb + "するファイルの選択", Rgb(128, 64, 64)}),
      Files(*this, "File1", {8, 32, 137, 54}),
      OKButton(*this, "OKButton", {152, 56, 81, 25}, {verb}),
      PartyFrame(*this, "Frame1", {8, 88, 225, 137}, {verb + "するデータ"}),
      RoundLabel(PartyFrame, "Label4", {72, 48, 81, 17}, {"", 0, {}, Align::Centre}),
      game_(game) {
  Caption = "ファイルの" + verb;
  Files.Pattern = "*.sav";
  Files.OnClick = [this] { Open(); };
  Faces.Add(0, PartyFrame, Place{8, 32, 48, 48}, PictureValues{Sheet("face_man")});
  Faces.Add(1, PartyFrame, Place{152, 32, 48, 48}, PictureValues{Sheet("face_woman")});
  Names.Add(0, PartyFrame, Place{8, 88, 73, 17});
  Names.Add(1, PartyFrame, Place{152, 88, 65, 17});
  Levels.Add(0, PartyFrame, Place{8, 112, 73, 17});
  Levels.Add(1, PartyFrame, Place{152, 112, 65, 17});
}

void SaveDialog::ListFiles() {
  Files.Rows = game_.services.Files.List(Files.Pattern);
}

void SaveDialog::ShowParty(int round, const Array<HeroNameField, 3>& names,
                           const Array<Int16, 3>& levels) {
  RoundLabel.Caption = "ラウンド：" + std::to_string(round);
  for (int hero = 0; hero < 2; ++hero) {
    Names[hero].Caption = names[hero].Trimmed();
    Levels[hero].Caption = "LV：" + std::to_string(levels[hero]);
  }
}

void SaveDialog::Open() {
  opened_ = Files.FileName();
}

bool SaveDialog::NothingChosen() {
  if (!Files.FileName().empty() && !opened_.empty()) return false;
  Warn(game_, "ファイルを選択してください");
  return true;
}

void SaveDialog::Leave() {
  opened_.clear();
  game_.Main.WalkTimer.SetEnabled(true);
}

}  // namespace orvane
