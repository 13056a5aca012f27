// Who is to receive a recovery item.
#pragma once

#include "src/screens/item.h"

namespace orvane {

class ItemUseScreen : public Screen {
 public:
  ItemUseScreen(Game& game, ItemScreen& item);

  Label Question, ItemName, HealingValue;
  Frame HeroesFrame;
  PictureBox ManFace, WomanFace;
  ControlArray<CommandButton> HeroButtons{"Command1"};
  ControlArray<Label> HPValues{"Label1"};
  ControlArray<Label> MPValues{"Label2"};

 protected:
  void OnActivate(bool entered) override;
  void OnClose() override { TheStage().Hide(*this); }

 private:
  void Give(int hero);

  Game& game_;
  ItemScreen& item_;
};

}  // namespace orvane
