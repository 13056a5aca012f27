// Where the files of a game are kept: a folder, a browser's storage, or the memory of a test.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orvane {

// File names are UTF-8, with "/" between folders, counted from the game folder.
class Storage {
 public:
  virtual ~Storage() = default;

  // What sound commands call the game folder: its path, with no separator at its end.
  virtual std::string FolderName() const = 0;

  // All bytes of a file, or nothing if it is missing or cannot be read.
  virtual std::optional<std::string> Read(const std::string& name) const = 0;

  // The bytes of a file that is held open from now on: what becomes of its name changes nothing,
  // what is written into it by other hands may show. Null if it is missing or cannot be read.
  virtual std::shared_ptr<const std::string> Open(const std::string& name) const;

  // Names of the files in the game folder itself that match a pattern with "*", sorted. Letters
  // match in both cases.
  virtual std::vector<std::string> List(const std::string& pattern) const = 0;

  // Told once a replacement is over: nothing when it has come to last, otherwise what the system
  // says is in the way.
  using Outcome = std::function<void(const std::string& failure)>;

  // Replaces a file by `bytes`, so that at every moment the old or the new one is there whole, and
  // the new one lasts before the outcome tells so; where it fails, the old one stays. The outcome
  // may be told within the call or later.
  virtual void Replace(const std::string& name, const std::string& bytes, Outcome outcome) = 0;
};

// Whether a name matches a pattern in which "*" stands for any characters; A to Z match a to z. In
// "*.sav" it stands for one character at least: a file that is called ".sav" has no name.
bool MatchesPattern(std::string_view name, std::string_view pattern);

}  // namespace orvane
