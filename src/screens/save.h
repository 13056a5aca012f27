// The dialog that saves the game.
#pragma once

#include "src/screens/save_dialog.h"

namespace orvane {

class SaveScreen : public SaveDialog {
 public:
  explicit SaveScreen(Game& game);

 protected:
  void OnLoad() override;
  void OnUnload() override { Leave(); }

 private:
  void Save();
  void Write();
};

}  // namespace orvane
