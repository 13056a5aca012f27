// Where the program keeps what belongs to the player and to this machine.
#pragma once

#include <filesystem>

namespace orvane {

// The program's own folder in the local application data, which need not be there yet; nothing
// where the system names none.
std::filesystem::path LocalFolder();

}  // namespace orvane
