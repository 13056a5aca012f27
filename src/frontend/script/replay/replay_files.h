// What can be done with recorded plays.
#pragma once

#include <filesystem>
#include <string>

namespace orvane {

// Plays a replay again over this game folder and prints what it came to. 0 when it came out as it
// was recorded, 1 when something differs, 2 when the file is no replay.
int PlayReplay(const std::string& file, const std::filesystem::path& game_folder);

// Prints a replay as a script that plays the same and expects the same at its end. The status is
// the same.
int PrintAsScript(const std::string& file, const std::filesystem::path& game_folder);

}  // namespace orvane
