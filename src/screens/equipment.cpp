#include "src/screens/equipment.h"

#include <string>

#include "src/core/hero_numbers.h"
#include "src/core/sheets.h"
#include "src/screens/item.h"

namespace orvane {
namespace {

constexpr const char* kNothing = "なし";

// The heroes' weapons and armour.
constexpr ItemKind kWeapon[] = {ItemKind::HisWeapon, ItemKind::HerWeapon};
constexpr ItemKind kArmour[] = {ItemKind::HisArmour, ItemKind::HerArmour};

constexpr Place kEquipPlace{8, 40, 89, 33};
constexpr Place kRemovePlace{8, 88, 89, 41};
constexpr Place kClosePlace{8, 184, 89, 25};
constexpr Place kFacePlace{240, 144, 50, 50};

// Two columns of captions with their values, three rows each.
void AddRows(TabStrip& tabs, int hero, ControlArray<Label>& captions, ControlArray<Label>& values,
             const char* const (&texts)[3], double top, double value_left) {
  for (int row = 0; row < 3; ++row) {
    const double y = top + row * 24;
    captions.Add(row, PaneOf(tabs, hero), Place{112, y, 65, 17}, LabelValues{texts[row]});
    values.Add(row, PaneOf(tabs, hero), Place{value_left, y, 297 - value_left, 17});
  }
}

}  // namespace

EquipmentScreen::EquipmentScreen(Game& game)
    : Screen(game.stage, "Wepon", "装備", 473, 241),
      BagCaption(*this, "Label5", {32, 24, 113, 17}, {"アイテムリスト"}),
      Bag(*this, "List1", {8, 48, 137, 172}),
      HeroTabs(*this, "SSTab1", {160, 8, 305, 225}, {{"", ""}, {true, true}}),
      ManEquip(PaneOf(HeroTabs, 0), "Command1", kEquipPlace, {"装備 >>"}),
      ManRemoveAll(PaneOf(HeroTabs, 0), "Command2", kRemovePlace, {"<< すべて　　はずす"}),
      ManClose(PaneOf(HeroTabs, 0), "Command5", kClosePlace, {"閉じる"}),
      WomanEquip(PaneOf(HeroTabs, 1), "Command3", kEquipPlace, {"装備 >>"}),
      WomanRemoveAll(PaneOf(HeroTabs, 1), "Command4", kRemovePlace, {"<< すべて　　はずす"}),
      WomanClose(PaneOf(HeroTabs, 1), "Command6", kClosePlace, {"閉じる"}),
      ManFace(PaneOf(HeroTabs, 0), "Picture1", kFacePlace, {Sheet("face_man"), 1}),
      WomanFace(PaneOf(HeroTabs, 1), "Picture2", kFacePlace, {Sheet("face_woman"), 1}),
      game_(game) {
  AddRows(HeroTabs, 0, ManWornCaptions, ManWorn, {"武器 ：", "防具 ：", "本  ："}, 40, 160);
  AddRows(HeroTabs, 1, WomanWornCaptions, WomanWorn, {"武器 ：", "防具 ：", " 本  ："}, 40, 160);
  AddRows(HeroTabs, 0, ManNumberCaptions, ManNumbers, {"攻撃力 ：", "守備力 ：", "精神力 ："}, 128,
          180);
  AddRows(HeroTabs, 1, WomanNumberCaptions, WomanNumbers, {"攻撃力 ：", "守備力 ：", "精神力 ："},
          128, 180);
  Members.emplace_back("LastRow", &LastRow);
  Bag.OnClick = [this] { RowChosen(); };
  HeroTabs.OnClick = [this] { TabOpened(); };
  for (int hero = 0; hero < 2; ++hero) {
    EquipButton(hero).OnClick = [this, hero] { Equip(hero); };
    RemoveButton(hero).OnClick = [this, hero] { RemoveAll(hero); };
  }
  BackButtons = {&ManClose, &WomanClose};
  ManClose.OnClick = WomanClose.OnClick = [this] { TheStage().Unload(*this); };
}

void EquipmentScreen::OnLoad() {
  LastRow = 0;
  ShowEquipment();
  ManEquip.Enabled = false;
  WomanEquip.Enabled = false;
  FillItemList(game_, Bag);
  const int hero = HeroTabs.Tab();
  RemoveButton(hero).Enabled = !WearsNothing(hero);
}

void EquipmentScreen::OnActivate(bool) {
  SumUp(game_.state);
  ShowEquipment();
  FillItemList(game_, Bag);
}

void EquipmentScreen::OnUnload() {
  game_.Main.WalkTimer.SetEnabled(true);
}

void EquipmentScreen::ShowEquipment() {
  const State& state = game_.state;
  for (int hero = 0; hero < 2; ++hero) {
    Names(hero)[0].Caption = state.WeaponName[hero].Trimmed();
    Names(hero)[1].Caption = state.ArmourName[hero].Trimmed();
    Names(hero)[2].Caption = state.BookName[hero].Trimmed();
    Numbers(hero)[0].Caption = std::to_string(state.Attack[hero]);
    Numbers(hero)[1].Caption = std::to_string(state.Defence[hero]);
    Numbers(hero)[2].Caption = std::to_string(state.Spirit[hero]);
    HeroTabs.SetTabCaption(hero, state.HeroName[hero].Trimmed());
  }
}

bool EquipmentScreen::WearsNothing(int hero) {
  for (int row = 0; row < 3; ++row) {
    if (Names(hero)[row].Caption != kNothing) return false;
  }
  return true;
}

bool EquipmentScreen::MayEquip(int hero) {
  const State& state = game_.state;
  const int other = hero ^ 1;
  const ItemRecord& item = state.ItemRec;
  if (item.Is(ItemKind::Recovery) || item.Is(kWeapon[other]) || item.Is(kArmour[other]))
    return false;
  const std::string row = Trim(Bag.Text());
  return row != state.BookName[other].Trimmed() && row != kNothing;
}

void EquipmentScreen::RowChosen() {
  const int hero = HeroTabs.Tab();
  ReadItem(game_, game_.state.Items[Bag.ListIndex]);
  LastRow = Bag.ListIndex;
  EquipButton(hero).Enabled = MayEquip(hero);
}

void EquipmentScreen::TabOpened() {
  const int hero = HeroTabs.Tab();
  ReadItem(game_, game_.state.Items[LastRow]);
  EquipButton(hero).Enabled = Bag.ListIndex >= 0 && MayEquip(hero);
  RemoveButton(hero).Enabled = !WearsNothing(hero);
}

void EquipmentScreen::Equip(int hero) {
  State& state = game_.state;
  if (Bag.ListIndex < 0) return;
  RemoveButton(hero).Enabled = true;
  const std::string name = Bag.Text();
  const ItemRecord& item = state.ItemRec;
  if (item.Is(kWeapon[hero])) {
    Names(hero)[0].Caption = name;
    state.WeaponName[hero] = name;
    WearWeapon(hero);
  } else if (item.Is(kArmour[hero])) {
    Names(hero)[1].Caption = name;
    state.ArmourName[hero] = name;
    WearArmour(hero);
  } else if (item.Is(ItemKind::Book)) {
    Names(hero)[2].Caption = name;
    state.BookName[hero] = name;
    state.BookSkill[hero] = Int16(item.Value);
  }
}

void EquipmentScreen::RemoveAll(int hero) {
  for (int row = 0; row < 3; ++row) Names(hero)[row].Caption = kNothing;
  TakeOffWeapon(hero);
  TakeOffArmour(hero);
  game_.state.BookName[hero] = kNothing;
  game_.state.BookSkill[hero] = 0;
  RemoveButton(hero).Enabled = false;
}

void EquipmentScreen::WearWeapon(int hero) {
  State& state = game_.state;
  state.WeaponAttack[hero] = Int16(state.ItemRec.Value);
  SumUpAttack(state, hero);
  Numbers(hero)[0].Caption = std::to_string(state.Attack[hero]);
}

void EquipmentScreen::WearArmour(int hero) {
  State& state = game_.state;
  state.ArmourDefence[hero] = Int16(state.ItemRec.Value);
  SumUpDefence(state, hero);
  Numbers(hero)[1].Caption = std::to_string(state.Defence[hero]);
}

void EquipmentScreen::TakeOffWeapon(int hero) {
  State& state = game_.state;
  state.WeaponAttack[hero] = 0;
  state.WeaponName[hero] = kNothing;
  SumUpAttack(state, hero);
  Numbers(hero)[0].Caption = std::to_string(state.Attack[hero]);
}

void EquipmentScreen::TakeOffArmour(int hero) {
  State& state = game_.state;
  state.ArmourDefence[hero] = 0;
  state.ArmourName[hero] = kNothing;
  SumUpDefence(state, hero);
  Numbers(hero)[1].Caption = std::to_string(state.Defence[hero]);
}

}  // namespace orvane
