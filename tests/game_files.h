// The game folder in memory.
#pragma once

#include <filesystem>
#include <map>
#include <string>

#include "src/platform/path_text.h"
#include "src/platform/whole_file.h"

namespace orvane::test {

// All files of a game folder but its sounds, by their names in it.
inline std::map<std::string, std::string> ReadGameFiles(const std::filesystem::path& folder) {
  std::map<std::string, std::string> files;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
    const std::string name = TextOf(entry.path().lexically_relative(folder).generic_string());
    if (!entry.is_regular_file() || name.starts_with("Sound/")) continue;
    files[name] = ReadWholeFile(entry.path()).value_or("");
  }
  return files;
}

}  // namespace orvane::test
