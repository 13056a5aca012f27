// The bag: using, throwing away and tidying its items.
#pragma once

#include "src/core/game.h"
#include "src/ui/controls.h"
#include "src/ui/screen.h"

namespace orvane {

class ItemScreen : public Screen {
 public:
  explicit ItemScreen(Game& game);

  Label ListCaption;
  ListBox Bag;  // row n is slot n of the bag
  CommandButton UseButton, DiscardButton, TidyButton;

  // Opens the question who is to get the selected item.
  Handler AskWho;

 protected:
  void OnActivate(bool entered) override;
  // Hides the screen; it keeps its controls' states.
  void OnClose() override;

 private:
  void RowChosen();
  void Use();
  void Discard();
  void ThrowAway();
  void Tidy();
  bool IsWorn() const;

  Game& game_;
};

// Fills a list with the twenty slots of the bag: names, "なし" where a slot is empty. Reads every
// record.
void FillItemList(Game& game, ListBox& list);

// Sorts the bag by item number; empty slots go to the end.
void SortItems(GameRecord& record);

}  // namespace orvane
