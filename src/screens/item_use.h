// Who is to receive a recovery item.
#pragma once

#include "src/screens/item.h"

namespace orvane {

class ItemUseScreen : public Screen {
 public:
  ItemUseScreen(Game& game, ItemScreen& item);

  Label Label3, Label4, Label5;
  Frame Frame1;
  PictureBox Picture1, Picture2;
  ControlArray<CommandButton> Command1{"Command1"};
  ControlArray<Label> Label1{"Label1"};
  ControlArray<Label> Label2{"Label2"};

 protected:
  void OnActivate(bool entered) override;
  void OnClose() override { TheStage().Hide(*this); }

 private:
  void Give(int hero);

  Game& game_;
  ItemScreen& item_;
};

}  // namespace orvane
