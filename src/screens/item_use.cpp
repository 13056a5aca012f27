#include "src/screens/item_use.h"

#include <string>

#include "src/core/bag.h"
#include "src/core/hero_numbers.h"
#include "src/core/sheets.h"

namespace orvane {
namespace {

// A tenth of an item's HP is the MP that it gives.
double MPOf(Int32 value) {
  return Int(value / 10.0);
}

}  // namespace

ItemUseScreen::ItemUseScreen(Game& game, ItemScreen& item)
    : Screen(game.stage, "ItemUse", "アイテムの使用", 233, 281),
      Question(*this, "Label3", {48, 8, 133, 16}, {"誰に使いますか？"}),
      ItemName(*this, "Label4", {24, 40, 169, 25}),
      HealingValue(*this, "Label5", {32, 64, 161, 16}),
      HeroesFrame(*this, "Frame1", {8, 80, 217, 193}),
      ManFace(HeroesFrame, "Picture1", {16, 16, 50, 50}, {Sheet("face_man"), 1}),
      WomanFace(HeroesFrame, "Picture2", {16, 104, 50, 50}, {Sheet("face_woman"), 1}),
      game_(game),
      item_(item) {
  for (int hero = 0; hero < 2; ++hero) {
    const double top = hero * 88;
    HeroButtons.Add(hero, HeroesFrame, Place{8, 72 + top, 65, 25}).OnClick = [this, hero] {
      Give(hero);
    };
    HPValues.Add(hero, HeroesFrame, Place{80, 24 + top, 129, 25});
    MPValues.Add(hero, HeroesFrame, Place{80, 48 + top, 129, 25});
  }
  item.AskWho = [this] {
    TheStage().Show(*this);
    TheStage().Hide(item_);
  };
}

void ItemUseScreen::OnActivate(bool) {
  const State& state = game_.state;
  ItemName.Caption = item_.Bag.Text();
  const Int32 value = state.ItemRec.Value;
  HealingValue.Caption = "回復値(HP:" + std::to_string(value) +
                         "MP:" + std::to_string(static_cast<int>(MPOf(value))) + ")";
  for (int hero = 0; hero < 2; ++hero) {
    HeroButtons[hero].Caption = state.HeroName[hero].Trimmed();
    HPValues[hero].Caption = "HP:" + Gauge(state.HP[hero], state.MaxHP[hero]);
    MPValues[hero].Caption = "MP:" + Gauge(state.MP[hero], state.MaxMP[hero]);
  }
}

void ItemUseScreen::Give(int hero) {
  State& state = game_.state;
  if (item_.Bag.ListIndex < 0) return;
  const Int32 value = state.ItemRec.Value;
  state.HP[hero] = state.HP[hero] + Int16(value);
  state.MP[hero] = RoundToInt16(state.MP[hero] + MPOf(value));
  CapHP(state, hero);
  CapMP(state, hero);
  TakeOutOfBag(state, item_.Bag.ListIndex);
  TheStage().Hide(*this);
}

}  // namespace orvane
