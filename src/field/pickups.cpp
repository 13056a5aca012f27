#include "src/field/pickups.h"

#include <algorithm>
#include <iterator>

#include "src/core/game.h"
#include "src/core/main_activation.h"
#include "src/field/message.h"

namespace orvane {
namespace {

constexpr Find kTreasures[] = {
    {3, 3, {1, 5, 9}},    {2, 1, {21, 24, 48}}, {2, 2, {29, 32, 27}}, {3, 1, {13, 16, 10}},
    {1, 1, {2, 6, 35}},   {1, 3, {30, 33, 19}}, {1, 4, {14, 17, 48}}, {1, 5, {22, 25, 11}},
    {2, 4, {47, 48, 20}}, {4, 5, {3, 7, 49}},   {4, 4, {23, 26, 28}}, {5, 3, {15, 18, 36}},
    {4, 2, {47, 48, 49}}, {4, 1, {31, 34, 49}}, {5, 1, {4, 8, 12}},
};

constexpr Find kBooks[] = {
    {1, 3, {37, 40, 43}},
    {3, 4, {38, 41, 44}},
    {3, 2, {39, 42, 45}},
    {6, 4, {46, 46, 46}},
};

static_assert(std::size(kTreasures) == kChestCount && std::size(kBooks) == kBookChestCount);

constexpr int kFirstBook = 37;

// The two kinds of chest differ in their table, in the fields of the record and in a full stop.
struct ChestKind {
  const Find* Begin;
  const Find* End;
  Int16& No;
  const char* FullText;
};

// The chest of the map on screen, or null where the table has none; sets its number.
const Find* FindHere(State& state, const ChestKind& kind) {
  const Find* found = std::find_if(kind.Begin, kind.End, [&state](const Find& find) {
    return find.MapA == state.MapA && find.MapB == state.MapB;
  });
  if (found == kind.End) return nullptr;
  kind.No = static_cast<int>(found - kind.Begin);
  return found;
}

int FirstEmptySlot(const State& state) {
  int slot = 0;
  while (slot < kBagSize && state.Items[slot] != kNoItem) ++slot;
  return slot;
}

// Recounts the bag and puts the name of a slot's item into the message.
void ShowItemGot(Game& game, int slot) {
  State& state = game.state;
  ReadItem(game, state.Items[slot]);
  int empty = 0;
  for (int each = 0; each < kBagSize; ++each) empty += state.Items[each] == kNoItem ? 1 : 0;
  // One less than the bag holds; the caller counts the new item.
  state.ItemCount = kBagSize - 1 - empty;
  game.Main.MessageLines[0].Caption = state.ItemRec.Name.Trimmed();
  game.Main.MessageLines[1].Caption = "を手に入れた";
}

// Puts the round's item of a chest into the slot, if the chest has one for this round.
bool StoreItem(Game& game, const Find* find, int slot) {
  State& state = game.state;
  if (find == nullptr || state.Round < 1 || state.Round > 3 || slot >= kBagSize) return false;
  state.Items[slot] = find->Item[state.Round - 1];
  ShowItemGot(game, slot);
  return true;
}

void WarnOfFullBag(Game& game, const char* text, const Handler& then) {
  Warn(game, text, [&game, then] {
    ClearDirections(game);
    game.state.OnChest = kTrue;
    then();
  });
}

}  // namespace

std::span<const Find> Treasures() {
  return kTreasures;
}

std::span<const Find> Books() {
  return kBooks;
}

void OpenTreasure(Game& game, const Handler& then) {
  State& state = game.state;
  const ChestKind kind{std::begin(kTreasures), std::end(kTreasures), state.TreasureNo,
                       "アイテムがいっぱいです。"};
  const Find* find = FindHere(state, kind);
  if (state.TreasureLeft[state.TreasureNo] != kTrue) return then();
  if (state.ItemCount >= kBagSize) return WarnOfFullBag(game, kind.FullText, then);
  StoreItem(game, find, FirstEmptySlot(state));
  state.TreasureLeft[state.TreasureNo] = kFalse;
  state.ItemCount += 1;
  StartMessage(game);
  then();
}

void OpenBook(Game& game, const Handler& then) {
  State& state = game.state;
  const ChestKind kind{std::begin(kBooks), std::end(kBooks), state.BookNo,
                       "アイテムがいっぱいです"};
  const Find* find = FindHere(state, kind);
  if (state.BookLeft[state.BookNo] != kTrue) return then();
  if (state.ItemCount >= kBagSize) return WarnOfFullBag(game, kind.FullText, then);
  const int slot = FirstEmptySlot(state);
  // Where no slot took a book, the spare slot beyond the bag is read, and its number teaches
  // nothing.
  const int taught = StoreItem(game, find, slot) ? slot : kBagSize;
  const int skill = state.Items[taught] - kFirstBook;
  state.WazaKnown[skill] = kTrue;
  state.MagicKnown[skill] = kTrue;
  state.BookLeft[state.BookNo] = kFalse;
  state.ItemCount += 1;
  StartMessage(game);
  then();
}

void RecoverAll(Game& game) {
  State& state = game.state;
  if (state.OnRecovery == kFalse) {
    state.RecoveryShown = kTrue;
    for (int hero = 0; hero < 2; ++hero) {
      state.HP[hero] = state.MaxHP[hero];
      state.MP[hero] = state.MaxMP[hero];
    }
    StartMessage(game);
    game.Main.MessageLines[0].Caption = "HP・MP全回復！";
    game.Main.MessageLines[1].Caption = "";
    game.Main.MessageWindow.Visible = true;
  }
  state.OnRecovery = kTrue;
}

}  // namespace orvane
