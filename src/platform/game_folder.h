// The folder that holds the item file, the maps, the sounds and the saves.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace orvane {

class GameFolder {
 public:
  explicit GameFolder(std::filesystem::path path) : path_(std::move(path)) {}

  // The path as text, with no separator at its end.
  std::string PathText() const;

  // All bytes of a file, or nothing if it is missing or cannot be read. "/" separates folders.
  std::optional<std::string> Read(const std::string& name) const;

  // Names of the files in the folder itself that match a pattern with "*", sorted.
  std::vector<std::string> List(const std::string& pattern) const;

  // Replaces a file by `bytes`, so that at every moment the old or the new one stands there whole.
  // Throws RunError(File) when it cannot be written; the old file then stays.
  void Replace(const std::string& name, const std::string& bytes) const;

 private:
  std::filesystem::path path_;
};

// Whether a name matches a pattern in which "*" stands for any characters.
bool MatchesPattern(const std::string& name, const std::string& pattern);

}  // namespace orvane
