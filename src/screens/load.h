// The dialog that loads a game. A file's preview is the file itself, read into the live record.
#pragma once

#include "src/screens/save_dialog.h"

namespace orvane {

class LoadScreen : public SaveDialog {
 public:
  explicit LoadScreen(Game& game);

 protected:
  void OnLoad() override { ListFiles(); }
  void OnUnload() override;
  // The preview.
  void Open() override;

 private:
  void ReadChosen();
  void Load();
};

}  // namespace orvane
