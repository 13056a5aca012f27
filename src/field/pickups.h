// Chests, book chests and recovery points.
#pragma once

#include <span>

#include "src/ui/control.h"

namespace orvane {

struct Game;

// What lies on a map, with its item in each round. Every chest tile of the map is the same chest.
struct Find {
  int MapA, MapB;
  int Item[3];
};

// The chests and the book chests, by the numbers that TreasureLeft and BookLeft know them by.
std::span<const Find> Treasures();
std::span<const Find> Books();

// The chest of the map on screen, if it is still closed: its item for this round goes into the bag.
// `then` follows, where the bag is full after the answer to the warning.
void OpenTreasure(Game& game, const Handler& then);

// The same for the book chest of the map: its book also teaches a technique and a spell.
void OpenBook(Game& game, const Handler& then);

// Heals the party, once per visit.
void RecoverAll(Game& game);

}  // namespace orvane
