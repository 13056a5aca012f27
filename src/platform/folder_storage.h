// The storage that is a folder of the system's.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "src/platform/storage.h"

namespace orvane {

class FolderStorage : public Storage {
 public:
  explicit FolderStorage(std::filesystem::path path) : path_(std::move(path)) {}

  std::string FolderName() const override;
  std::optional<std::string> Read(const std::string& name) const override;
  std::vector<std::string> List(const std::string& pattern) const override;
  // Tells its outcome within the call.
  void Replace(const std::string& name, const std::string& bytes, Outcome outcome) override;

 private:
  std::filesystem::path path_;
};

}  // namespace orvane
