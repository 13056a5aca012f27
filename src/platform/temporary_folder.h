// A folder for a while.
#pragma once

#include <filesystem>
#include <string_view>

namespace orvane {

// Makes a folder of a name that nobody has yet, which begins so, in the system's place for
// temporary files. Returns where it is, links resolved; throws std::filesystem::filesystem_error
// when there is no way to make one.
std::filesystem::path MakeTemporaryFolder(std::string_view beginning);

}  // namespace orvane
