// Reading and writing a whole file.
#pragma once

#include <filesystem>
#include <optional>
#include <string>

namespace orvane {

// All bytes of a file; nothing if it is missing, a folder, or cannot be read to its end.
std::optional<std::string> ReadWholeFile(const std::filesystem::path& path);

// Writes a file that can be made again: what is cut short stays so, and what stood there is gone.
// Returns whether all of it is written.
bool WriteWholeFile(const std::filesystem::path& path, const std::string& bytes);

}  // namespace orvane
