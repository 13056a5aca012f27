// The files of a program that a script plays: those of its scratch folder, which the script may
// change under the program.
#pragma once

#include <map>
#include <memory>
#include <string>

#include "src/platform/folder_storage.h"

namespace orvane {

class ScriptStorage : public FolderStorage {
 public:
  using FolderStorage::FolderStorage;

  std::shared_ptr<const std::string> Open(const std::string& name) const override;

  // A script has written a file: a program that holds it open reads these bytes from now on.
  void Written(const std::string& name, const std::string& bytes);

 private:
  mutable std::map<std::string, std::weak_ptr<std::string>> open_;
};

}  // namespace orvane
