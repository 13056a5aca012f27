// What the heroes wear: weapons, armour and books out of the bag, where the worn things stay.
#pragma once

#include <memory>
#include <vector>

#include "src/core/game.h"
#include "src/ui/controls.h"
#include "src/ui/screen.h"

namespace orvane {

class WeponScreen : public Screen {
 public:
  explicit WeponScreen(Game& game);

  Label Label5;
  ListBox List1;  // row n is slot n of the bag
  TabStrip SSTab1;
  CommandButton Command1, Command2, Command5;  // the man's: equip, remove all, close
  CommandButton Command3, Command4, Command6;  // the woman's
  ControlArray<Label> Label2{"Label2"};        // the man's weapon, armour, book
  ControlArray<Label> Label7{"Label7"};        // the woman's
  ControlArray<Label> Label4{"Label4"};        // the man's attack, defence, spirit
  ControlArray<Label> Label9{"Label9"};        // the woman's
  ControlArray<Label> Label1{"Label1"};        // captions
  ControlArray<Label> Label6{"Label6"};
  ControlArray<Label> Label3{"Label3"};
  ControlArray<Label> Label8{"Label8"};
  PictureBox Picture1, Picture2;
  Int16 LastRow;  // the row last selected

 protected:
  void OnLoad() override;
  void OnActivate(bool entered) override;
  void OnUnload() override;

 private:
  void ShowEquipment();
  void RowChosen();
  void TabOpened();
  void Equip(int hero);
  void RemoveAll(int hero);
  void WearWeapon(int hero);
  void WearArmour(int hero);
  void TakeOffWeapon(int hero);
  void TakeOffArmour(int hero);

  // Whether the tab's hero may wear the selected row with the record in the buffer.
  bool MayEquip(int hero);
  bool WearsNothing(int hero);

  ControlArray<Label>& Names(int hero) { return hero == 0 ? Label2 : Label7; }
  ControlArray<Label>& Numbers(int hero) { return hero == 0 ? Label4 : Label9; }
  CommandButton& EquipButton(int hero) { return hero == 0 ? Command1 : Command3; }
  CommandButton& RemoveButton(int hero) { return hero == 0 ? Command2 : Command4; }

  Game& game_;
};

}  // namespace orvane
