// Chests, book chests and recovery points, and their message.
#pragma once

#include "src/ui/control.h"

namespace orvane {

struct Game;

// The chest of the map on screen, if it is still closed: its item for this round goes into the bag.
// `then` follows, where the bag is full after the answer to the warning.
void OpenTreasure(Game& game, const Handler& then);

// The same for the book chest of the map: its book also teaches a technique and a spell.
void OpenBook(Game& game, const Handler& then);

// Heals the party, once per visit.
void RecoverAll(Game& game);

// Recounts the bag and puts the name of a slot's item into the message.
void ShowItemGot(Game& game, int slot);

// One tick of Main's MessageTimer, while a message waits for a click.
void MessageTick(Game& game);

// Takes a message away; the field goes on.
void CloseMessage(Game& game);

}  // namespace orvane
