// Where the running program is.
#pragma once

#include <filesystem>

namespace orvane {

// The file of the running program, links resolved; empty where the system does not tell.
std::filesystem::path ProgramPath();

}  // namespace orvane
