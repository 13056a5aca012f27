// A replay as a script.
#pragma once

#include <string>

#include "src/replay/replayer.h"

namespace orvane {

// Plays a replay to its end and tells it as a test of a script, which does the same by the calls of
// scripts, with the same chances, and expects the same state, screens and a grid of pixels at its
// end. `folder` is the game folder over which the script will run. Throws ReplayDiffers where the
// replay differs, or holds what no script can do: a save that could not be written.
std::string ScenarioOf(Replayer& replayer, const Storage& folder);

}  // namespace orvane
