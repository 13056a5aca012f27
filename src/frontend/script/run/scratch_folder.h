// A copy of a game folder that a program may change, removed with its object.
#pragma once

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "src/frontend/script/devices/script_storage.h"

namespace orvane {

class ScratchFolder {
 public:
  // Copies a folder into the folder for temporary files; throws ScriptError when it cannot. Large
  // files are linked to.
  explicit ScratchFolder(const std::filesystem::path& original);
  ~ScratchFolder();
  ScratchFolder(const ScratchFolder&) = delete;
  ScratchFolder& operator=(const ScratchFolder&) = delete;

  // Where it is, with no separator at the end.
  const std::filesystem::path& Path() const { return path_; }
  // Its files, as a program works with them.
  Storage& Files() { return *files_; }

  // The calls below take names with "/" between folders, and throw ScriptError for one that leads
  // out of the folder.

  // The bytes of a file, or nothing if there is none.
  std::optional<std::string> Read(const std::string& name) const;
  // Writes a file in its place, so that a program that holds it open sees the bytes too. The
  // original stays as it is. Throws ScriptError when it cannot be written.
  void Write(const std::string& name, const std::string& bytes);
  // Removes a file, if there is one.
  void Delete(const std::string& name) const;
  // The names of the files that match a pattern, sorted; with the folders that the pattern names.
  std::vector<std::string> List(const std::string& pattern) const;

 private:
  std::filesystem::path Inside(const std::string& name) const;

  std::filesystem::path path_;
  std::unique_ptr<ScriptStorage> files_;
};

}  // namespace orvane
