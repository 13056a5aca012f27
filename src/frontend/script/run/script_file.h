// Runs a script in a Lua state of its own.
#pragma once

#include <filesystem>
#include <string>

#include "src/frontend/script/run/tally.h"

namespace orvane {

// Runs all tests of a script; programs start in copies of `game_folder`.
void RunScript(const std::string& file, const std::filesystem::path& game_folder, Tally& tally);

}  // namespace orvane
