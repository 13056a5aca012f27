// The game folder of one player, where the program is installed for all.
#pragma once

#include <filesystem>
#include <string>

namespace orvane {

// Makes `own` a whole game folder after the one that was installed: what is missing is copied, and
// what an update has changed is copied anew. Saves that stand there are never touched, nor is
// anything else that the player has put there. Each file comes whole or not at all, so that a start
// that was cut short is made good by the next one. Returns what is wrong, or nothing.
std::string PreparePlayerFolder(const std::filesystem::path& installed,
                                const std::filesystem::path& own);

}  // namespace orvane
