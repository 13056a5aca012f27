// Files that a tool cannot go on without: where one cannot be read or written, std::runtime_error
// is thrown that names it.
#pragma once

#include <filesystem>
#include <stdexcept>
#include <string>
#include <utility>

#include "src/platform/whole_file.h"

namespace orvane {

// All bytes of a file.
inline std::string ReadFile(const std::filesystem::path& file) {
  auto bytes = ReadWholeFile(file);
  if (!bytes) throw std::runtime_error(file.string() + ": cannot read");
  return *std::move(bytes);
}

// Puts bytes in place of whatever the file held.
inline void WriteFile(const std::filesystem::path& file, const std::string& bytes) {
  if (!WriteWholeFile(file, bytes)) throw std::runtime_error(file.string() + ": cannot write");
}

}  // namespace orvane
