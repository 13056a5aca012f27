// What the heroes wear: weapons, armour and books out of the bag, where the worn things stay.
#pragma once

#include <memory>
#include <vector>

#include "src/core/game.h"
#include "src/ui/controls.h"
#include "src/ui/screen.h"

namespace orvane {

class EquipmentScreen : public Screen {
 public:
  explicit EquipmentScreen(Game& game);

  Label BagCaption;
  ListBox Bag;  // row n is slot n of the bag
  TabStrip HeroTabs;
  CommandButton ManEquip, ManRemoveAll, ManClose;
  CommandButton WomanEquip, WomanRemoveAll, WomanClose;
  ControlArray<Label> ManWorn{"Label2"};  // weapon, armour, book
  ControlArray<Label> WomanWorn{"Label7"};
  ControlArray<Label> ManNumbers{"Label4"};  // attack, defence, spirit
  ControlArray<Label> WomanNumbers{"Label9"};
  ControlArray<Label> ManWornCaptions{"Label1"};
  ControlArray<Label> WomanWornCaptions{"Label6"};
  ControlArray<Label> ManNumberCaptions{"Label3"};
  ControlArray<Label> WomanNumberCaptions{"Label8"};
  PictureBox ManFace, WomanFace;
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

  ControlArray<Label>& Names(int hero) { return hero == 0 ? ManWorn : WomanWorn; }
  ControlArray<Label>& Numbers(int hero) { return hero == 0 ? ManNumbers : WomanNumbers; }
  CommandButton& EquipButton(int hero) { return hero == 0 ? ManEquip : WomanEquip; }
  CommandButton& RemoveButton(int hero) { return hero == 0 ? ManRemoveAll : WomanRemoveAll; }

  Game& game_;
};

}  // namespace orvane
