#include "tests/power/computer.h"

#include <gtest/gtest.h>

#include "src/platform/path_text.h"
#include "src/platform/whole_file.h"

namespace orvane::power {

std::optional<std::string> ShakyFolder::Read(const std::string& name) const {
  if (!name.ends_with(".sav") || !trouble_.StepFails()) return FolderStorage::Read(name);
  ++failed_reads_;
  return std::nullopt;
}

Computer::Computer(const std::filesystem::path& folder, const Way& way, Disk& disk,
                   Trouble& trouble)
    : folder_(folder),
      disk_(disk),
      files_(
          folder,
          [this, &way, &trouble](const auto& path, const std::string& bytes) {
            asked_ = bytes;
            const std::string failure = way.Replace(path, bytes, trouble);
            Show();
            return failure;
          },
          trouble) {
  Show();
}

Computer::~Computer() {
  for (const auto& [name, bytes] : shown_) std::filesystem::remove(folder_ / PathOf(name));
}

void Computer::LosePower() {
  disk_.LosePower();
  Show();
}

void Computer::Show() {
  std::map<std::string, std::string> now = disk_.Files();
  for (const auto& [name, bytes] : shown_) {
    if (!now.contains(name)) std::filesystem::remove(folder_ / PathOf(name));
  }
  for (const auto& [name, bytes] : now) {
    const auto before = shown_.find(name);
    if (before != shown_.end() && before->second == bytes) continue;
    // A file that is emptied to be written anew makes some systems wait for their disk.
    std::filesystem::remove(folder_ / PathOf(name));
    ASSERT_TRUE(WriteWholeFile(folder_ / PathOf(name), bytes));
  }
  shown_ = std::move(now);
}

}  // namespace orvane::power
