#include "src/screens/item_use.h"

#include <string>

#include "src/core/sheets.h"

namespace orvane {
namespace {

// A tenth of an item's HP is the MP that it gives.
double MPOf(Int32 value) {
  return Int(value / 10.0);
}

std::string Gauge(const char* caption, int now, int limit) {
  return caption + std::to_string(now) + "/" + std::to_string(limit);
}

}  // namespace

ItemUseScreen::ItemUseScreen(Game& game, ItemScreen& item)
    : Screen(game.stage, "ItemUse", "アイテムの使用", 233, 281),
      Label3(*this, "Label3", {48, 8, 133, 16}, {"誰に使いますか？"}),
      Label4(*this, "Label4", {24, 40, 169, 25}),
      Label5(*this, "Label5", {32, 64, 161, 16}),
      Frame1(*this, "Frame1", {8, 80, 217, 193}),
      Picture1(Frame1, "Picture1", {16, 16, 50, 50}, {Sheet("face_man"), 1}),
      Picture2(Frame1, "Picture2", {16, 104, 50, 50}, {Sheet("face_woman"), 1}),
      game_(game),
      item_(item) {
  for (int hero = 0; hero < 2; ++hero) {
    const double top = hero * 88;
    Command1.Add(hero, Frame1, Place{8, 72 + top, 65, 25}).OnClick = [this, hero] { Give(hero); };
    Label1.Add(hero, Frame1, Place{80, 24 + top, 129, 25});
    Label2.Add(hero, Frame1, Place{80, 48 + top, 129, 25});
  }
  item.AskWho = [this] {
    TheStage().Show(*this);
    TheStage().Hide(item_);
  };
}

void ItemUseScreen::OnActivate(bool) {
  const State& state = game_.state;
  Label4.Caption = item_.List1.Text();
  const Int32 value = state.ItemRec.Value;
  Label5.Caption = "回復値(HP:" + std::to_string(value) +
                   "MP:" + std::to_string(static_cast<int>(MPOf(value))) + ")";
  for (int hero = 0; hero < 2; ++hero) {
    Command1[hero].Caption = state.HeroName[hero].Trimmed();
    Label1[hero].Caption = Gauge("HP:", state.HP[hero], state.MaxHP[hero]);
    Label2[hero].Caption = Gauge("MP:", state.MP[hero], state.MaxMP[hero]);
  }
}

void ItemUseScreen::Give(int hero) {
  State& state = game_.state;
  if (item_.List1.ListIndex < 0) return;
  const Int32 value = state.ItemRec.Value;
  state.HP[hero] = state.HP[hero] + Int16(value);
  state.MP[hero] = RoundToInt16(state.MP[hero] + MPOf(value));
  if (state.HP[hero] > state.MaxHP[hero]) state.HP[hero] = state.MaxHP[hero];
  if (state.MP[hero] > state.MaxMP[hero]) state.MP[hero] = state.MaxMP[hero];
  state.Items[item_.List1.ListIndex] = NoItem;
  state.ItemCount -= 1;
  TheStage().Hide(*this);
}

}  // namespace orvane
