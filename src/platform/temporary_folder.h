// A folder for a while.
#pragma once

#include <filesystem>
#include <string_view>

namespace orvane {

// Makes a folder of a name that nobody has yet, which begins so, in the system's place for
// temporary files. Returns where it is, links resolved; throws std::filesystem::filesystem_error
// when there is no way to make one.
std::filesystem::path MakeTemporaryFolder(std::string_view beginning);

// Removes a folder with all that is in it; links go, what they lead to stays. What somebody else
// holds open is waited for, two seconds at most, and then left. Does nothing where there is none.
void RemoveFolder(const std::filesystem::path& folder);

}  // namespace orvane
