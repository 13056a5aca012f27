#include "src/screens/item.h"

#include <utility>

#include "src/core/bag.h"

namespace orvane {
namespace {

// Names count as alike from their first five characters.
constexpr int kComparedChars = 5;

}  // namespace

ItemScreen::ItemScreen(Game& game)
    : Screen(game.stage, "Item", "アイテム", 257, 164),
      ListCaption(*this, "Label1", {40, 8, 113, 25}, {"アイテムリスト"}),
      Bag(*this, "List1", {8, 32, 153, 124}),
      UseButton(*this, "Command1", {176, 40, 73, 33}, {"使う"}),
      DiscardButton(*this, "Command2", {176, 80, 73, 33}, {"捨てる"}),
      TidyButton(*this, "Command8", {176, 120, 73, 33}, {"整理"}),
      game_(game) {
  Bag.OnClick = [this] { RowChosen(); };
  UseButton.OnClick = [this] { Use(); };
  DiscardButton.OnClick = [this] { Discard(); };
  TidyButton.OnClick = [this] { Tidy(); };
}

void ItemScreen::OnActivate(bool) {
  if (Bag.ListIndex < 0) {
    UseButton.Enabled = false;
    DiscardButton.Enabled = false;
  }
  FillItemList(game_, Bag);
}

void ItemScreen::OnClose() {
  // Before Main is active again, which may stop the walk for a scene.
  game_.Main.WalkTimer.SetEnabled(true);
  TheStage().Hide(*this);
}

bool ItemScreen::IsWorn() const {
  const State& state = game_.state;
  const auto start = [](const ItemNameField& name) {
    return LeftChars(name.Full(), kComparedChars);
  };
  const std::string item = start(state.ItemRec.Name);
  for (int hero = 0; hero < 2; ++hero) {
    if (item == start(state.WeaponName[hero]) || item == start(state.ArmourName[hero])) return true;
  }
  return false;
}

void ItemScreen::RowChosen() {
  const State& state = game_.state;
  const int item = state.Items[Bag.ListIndex];
  ReadItem(game_, item);
  UseButton.Enabled = item != kNoItem && state.ItemRec.Is(ItemKind::Recovery);
  DiscardButton.Enabled = item != kNoItem && !state.ItemRec.Is(ItemKind::Book) && !IsWorn();
}

void ItemScreen::Use() {
  if (!game_.state.ItemRec.Is(ItemKind::Recovery)) return Warn(game_, "使えません。");
  if (Bag.ListIndex >= 0) AskWho();
}

void ItemScreen::Discard() {
  State& state = game_.state;
  if (Bag.ListIndex < 0) return;
  ReadItem(game_, state.Items[Bag.ListIndex]);
  const std::string question = "捨ててもよろしいですか？\n" + state.ItemRec.Name.Full();
  TheStage().Ask({question, "アイテム削除", BoxButtons::OkCancel}, [this](BoxAnswer answer) {
    if (answer == BoxAnswer::Ok) ThrowAway();
  });
}

void ItemScreen::ThrowAway() {
  TakeOutOfBag(game_.state, Bag.ListIndex);
  FillItemList(game_, Bag);
  DiscardButton.Enabled = false;
}

void ItemScreen::Tidy() {
  SortItems(game_.state);
  FillItemList(game_, Bag);
}

void FillItemList(Game& game, ListBox& list) {
  list.Clear();
  for (int slot = 0; slot < kBagSize; ++slot) {
    const int item = game.state.Items[slot];
    ReadItem(game, item);
    list.AddItem(item == kNoItem ? std::string("なし") : game.state.ItemRec.Name.Full());
  }
}

void SortItems(GameRecord& record) {
  for (int pass = 0; pass < kBagSize; ++pass) {
    for (int slot = 0; slot + 1 < kBagSize; ++slot) {
      if (record.Items[slot] > record.Items[slot + 1])
        std::swap(record.Items[slot], record.Items[slot + 1]);
    }
  }
}

}  // namespace orvane
