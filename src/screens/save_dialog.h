// What the dialogs for saving and loading have in common: a list of save files and a view of the
// party.
#pragma once

#include <string>

#include "src/core/game.h"
#include "src/ui/controls.h"
#include "src/ui/screen.h"

namespace orvane {

class SaveDialog : public Screen {
 public:
  // `verb` is "セーブ" or "ロード".
  SaveDialog(Game& game, const std::string& name, const std::string& verb);

  Label Request;
  FileListBox Files;
  CommandButton OKButton;
  Frame PartyFrame;
  Label RoundLabel;
  ControlArray<PictureBox> Faces{"Picture1"};
  ControlArray<Label> Names{"Label2"};
  ControlArray<Label> Levels{"Label3"};

 protected:
  // The files that are there now.
  void ListFiles();
  // Shows a party: round, names and levels.
  void ShowParty(int round, const Array<HeroNameField, 3>& names, const Array<Int16, 3>& levels);
  // A name has been clicked: its file is the one that OK works on.
  virtual void Open();
  // The file last clicked, or nothing.
  const std::string& Opened() const { return opened_; }
  // True, after a warning, when no file has been chosen. A name that is only marked counts as none.
  bool NothingChosen();
  // The dialog is about to go; the field goes on.
  void Leave();

  Game& game_;

 private:
  std::string opened_;
};

}  // namespace orvane
