// Keeping a piece of music going.
#pragma once

#include <string>

namespace orvane {

struct Game;

// Opens the channel - which fails harmlessly when it is open - and starts its piece if it stands
// still.
void KeepMusic(Game& game, const std::string& alias);

// Starts the channel's piece from the beginning if it stands still: freshly opened, or run to its
// end.
void RestartStoppedMusic(Game& game, const std::string& alias);

}  // namespace orvane
