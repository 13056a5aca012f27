// A folder for a fuzzer's files, with a folder Sound in it, removed with it.
#pragma once

#include <filesystem>
#include <string>

#include "src/platform/path_text.h"
#include "src/platform/temporary_folder.h"
#include "src/platform/whole_file.h"

namespace orvane::fuzz {

class ScratchFolder {
 public:
  ScratchFolder() : path_(MakeTemporaryFolder("orvane-fuzz-")) {
    std::filesystem::create_directories(path_ / "Sound");
  }
  ~ScratchFolder() { RemoveFolder(path_); }
  ScratchFolder(const ScratchFolder&) = delete;
  ScratchFolder& operator=(const ScratchFolder&) = delete;

  void Write(const std::string& name, const std::string& bytes) const {
    WriteWholeFile(path_ / PathOf(name), bytes);
  }
  std::string Path() const { return TextOf(path_); }

 private:
  std::filesystem::path path_;
};

}  // namespace orvane::fuzz
