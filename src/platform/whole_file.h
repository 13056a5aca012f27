// Reading a whole file.
#pragma once

#include <filesystem>
#include <optional>
#include <string>

namespace orvane {

// All bytes of a file; nothing if it is missing, a folder, or cannot be read to its end.
std::optional<std::string> ReadWholeFile(const std::filesystem::path& path);

}  // namespace orvane
