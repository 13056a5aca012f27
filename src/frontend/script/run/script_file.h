// Runs a script in a Lua state of its own.
#pragma once

#include <filesystem>
#include <string>

#include "src/frontend/script/run/tally.h"

namespace orvane {

// Runs all tests of a script; programs start in copies of `game_folder`. `record` names the file
// that takes a record of what its programs did, as Session::RecordTo has it; empty for none.
void RunScript(const std::string& file, const std::filesystem::path& game_folder,
               const std::filesystem::path& record, Tally& tally);

}  // namespace orvane
