// A game from the beginning.
#pragma once

namespace orvane {

struct Game;
struct GameRecord;

// Fills the record for a game from the beginning: heroes, bag, chests, skills. Leaves alone the
// names, the copies for the load screen and the proficiency counters. SaveX and SaveY become tile
// numbers.
void FreshRecord(GameRecord& record);

// Closes all chests and book chests, as every round begins.
void CloseChests(GameRecord& record);

// Fills the record and the state around it for a game from the beginning. Leaves alone the names,
// the copies for the load screen and the proficiency counters. SaveX and SaveY become tile numbers.
void NewGameDefaults(Game& game);

}  // namespace orvane
