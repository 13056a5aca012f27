// The storage that is a folder of the system's.
#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "src/platform/durable_file.h"
#include "src/platform/storage.h"

namespace orvane {

class FolderStorage : public Storage {
 public:
  // How a file is replaced: as ReplaceFileDurably does it, and with its answers.
  using ReplaceFile =
      std::function<std::string(const std::filesystem::path& path, const std::string& bytes)>;

  explicit FolderStorage(std::filesystem::path path, ReplaceFile replace = &ReplaceFileDurably)
      : path_(std::move(path)), replace_(std::move(replace)) {}

  std::string FolderName() const override;
  std::optional<std::string> Read(const std::string& name) const override;
  std::vector<std::string> List(const std::string& pattern) const override;
  // Tells its outcome within the call.
  void Replace(const std::string& name, const std::string& bytes, Outcome outcome) override;

 private:
  std::filesystem::path path_;
  ReplaceFile replace_;
};

}  // namespace orvane
