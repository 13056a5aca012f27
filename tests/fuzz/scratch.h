// A folder for a fuzzer's files, with a folder Sound in it, removed with it.
#pragma once

#include <filesystem>
#include <fstream>
#include <string>
#include <system_error>

#include "src/platform/path_text.h"
#include "src/platform/temporary_folder.h"

namespace orvane::fuzz {

class ScratchFolder {
 public:
  ScratchFolder() : path_(MakeTemporaryFolder("orvane-fuzz-")) {
    std::filesystem::create_directories(path_ / "Sound");
  }
  ~ScratchFolder() {
    std::error_code error;
    std::filesystem::remove_all(path_, error);
  }
  ScratchFolder(const ScratchFolder&) = delete;
  ScratchFolder& operator=(const ScratchFolder&) = delete;

  void Write(const std::string& name, const std::string& bytes) const {
    std::ofstream(path_ / PathOf(name), std::ios::binary) << bytes;
  }
  std::string Path() const { return TextOf(path_); }

 private:
  std::filesystem::path path_;
};

}  // namespace orvane::fuzz
