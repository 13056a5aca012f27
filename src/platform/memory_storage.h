// A storage in memory, for tests: its files are there to be looked at and changed, and it can fail
// or answer later, as a disk or a browser does.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "src/platform/storage.h"

namespace orvane {

class MemoryStorage : public Storage {
 public:
  std::string FolderName() const override { return "memory"; }
  std::optional<std::string> Read(const std::string& name) const override;
  std::vector<std::string> List(const std::string& pattern) const override;
  void Replace(const std::string& name, const std::string& bytes, Outcome outcome) override;

  // Carries out the oldest replacement that waits, if one does.
  void Settle();

  std::map<std::string, std::string> Files;
  std::string Failure;        // what every replacement is told to be in the way; empty for none
  bool AnswersLater = false;  // replacements wait for Settle

 private:
  struct Waiting {
    std::string Name;
    std::string Bytes;
    Outcome Tell;
  };

  void CarryOut(const Waiting& replacement);

  std::vector<Waiting> waiting_;
};

}  // namespace orvane
