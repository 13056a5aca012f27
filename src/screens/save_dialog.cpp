#include "src/screens/save_dialog.h"

#include "src/core/sheets.h"

namespace orvane {

SaveDialog::SaveDialog(Game& game, const std::string& name, const std::string& verb)
    : Screen(game.stage, name, "ファイルの" + verb, 241, 233),
      Label1(*this, "Label1", {8, 8, 185, 17}, {verb + "するファイルの選択", Rgb(128, 64, 64)}),
      File1(*this, "File1", {8, 32, 137, 54}),
      OKButton(*this, "OKButton", {152, 56, 81, 25}, {verb}),
      Frame1(*this, "Frame1", {8, 88, 225, 137}, {verb + "するデータ"}),
      Label4(Frame1, "Label4", {72, 48, 81, 17}, {"", 0, {}, Align::Centre}),
      game_(game) {
  File1.Pattern = "*.sav";
  File1.OnClick = [this] { Open(); };
  Picture1.Add(0, Frame1, Place{8, 32, 48, 48}, PictureValues{Sheet("face_man")});
  Picture1.Add(1, Frame1, Place{152, 32, 48, 48}, PictureValues{Sheet("face_woman")});
  Label2.Add(0, Frame1, Place{8, 88, 73, 17});
  Label2.Add(1, Frame1, Place{152, 88, 65, 17});
  Label3.Add(0, Frame1, Place{8, 112, 73, 17});
  Label3.Add(1, Frame1, Place{152, 112, 65, 17});
}

void SaveDialog::ListFiles() {
  File1.Rows = game_.folder.List(File1.Pattern);
}

void SaveDialog::ShowParty(int round, const Array<HeroNameField, 3>& names,
                           const Array<Int16, 3>& levels) {
  Label4.Caption = "ラウンド：" + std::to_string(round);
  for (int hero = 0; hero < 2; ++hero) {
    Label2[hero].Caption = names[hero].Trimmed();
    Label3[hero].Caption = "LV：" + std::to_string(levels[hero]);
  }
}

void SaveDialog::Open() {
  opened_ = File1.FileName();
}

bool SaveDialog::NothingChosen() {
  if (!File1.FileName().empty() && !opened_.empty()) return false;
  Warn(game_, "ファイルを選択してください");
  return true;
}

void SaveDialog::Leave() {
  opened_.clear();
  game_.Main.Timer1.SetEnabled(true);
}

}  // namespace orvane
