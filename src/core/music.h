// The music of where the party is, and keeping a piece going.
#pragma once

#include <string>

namespace orvane {

struct Game;
struct State;

// The channel of the field's piece, or null where none plays.
const char* FieldMusicOf(const State& state);

// The channel of the piece for the fight that the state is in or about to enter.
const char* FightMusicOf(const State& state);

// Opens the channel - which fails harmlessly when it is open - and starts its piece if it stands
// still.
void KeepMusic(Game& game, const std::string& alias);

// Starts the channel's piece from the beginning if it stands still: freshly opened, or run to its
// end.
void RestartStoppedMusic(Game& game, const std::string& alias);

}  // namespace orvane
