// A computer with the game folder on a disk whose power fails. Programs read the files where a
// folder of the system's shows what is on the disk now; what they replace goes to the disk by the
// system's own way.
#pragma once

#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <utility>

#include "src/platform/folder_storage.h"
#include "tests/power/cuts.h"

namespace orvane::power {

// A folder of the system's whose saves cannot be read now and then.
class ShakyFolder : public FolderStorage {
 public:
  // The trouble outlives it.
  ShakyFolder(std::filesystem::path path, ReplaceFile replace, Trouble& trouble)
      : FolderStorage(std::move(path), std::move(replace)), trouble_(trouble) {}

  std::optional<std::string> Read(const std::string& name) const override;

  // How many reads have failed so far.
  int FailedReads() const { return failed_reads_; }

 private:
  Trouble& trouble_;
  mutable int failed_reads_ = 0;
};

class Computer {
 public:
  // The disk holds these files. The folder shows them beside what it holds; it outlives the
  // computer, which clears away what it has shown.
  Computer(const std::filesystem::path& folder, const Way& way, Disk& disk, Trouble& trouble);
  ~Computer();
  Computer(const Computer&) = delete;
  Computer& operator=(const Computer&) = delete;

  // The storage that the desktop's programs are given.
  ShakyFolder& Files() { return files_; }
  // The bytes that the last file was to be replaced by.
  const std::string& Asked() const { return asked_; }

  // The power fails and comes back.
  void LosePower();

 private:
  void Show();

  std::filesystem::path folder_;
  Disk& disk_;
  std::map<std::string, std::string> shown_;
  std::string asked_;
  ShakyFolder files_;
};

}  // namespace orvane::power
