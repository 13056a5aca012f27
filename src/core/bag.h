// The bag of the party: twenty slots, and how many of them hold something.
#pragma once

#include "src/core/game_record.h"

namespace orvane {

// Empties a slot, 0 to 19. One that another screen has emptied meanwhile is not counted twice.
inline void TakeOutOfBag(GameRecord& record, int slot) {
  if (record.Items[slot] != kNoItem) record.ItemCount -= 1;
  record.Items[slot] = kNoItem;
}

}  // namespace orvane
