#include "src/platform/temporary_folder.h"

#include <chrono>
#include <random>
#include <string>
#include <system_error>
#include <thread>
#include <vector>

#include "src/platform/path_text.h"

namespace orvane {
namespace {

// Goes through a folder once. Returns whether nothing of it is left.
bool IsRemoved(const std::filesystem::path& path) {
  std::error_code failed;
  const auto kind = std::filesystem::symlink_status(path, failed).type();
  if (kind == std::filesystem::file_type::directory) {
    // All names are known before the first of them goes.
    std::vector<std::filesystem::path> inside;
    for (auto entry = std::filesystem::directory_iterator(path, failed);
         entry != std::filesystem::directory_iterator(); entry.increment(failed)) {
      inside.push_back(entry->path());
    }
    for (const auto& one : inside) IsRemoved(one);
  }
  std::filesystem::remove(path, failed);
  return !std::filesystem::exists(std::filesystem::symlink_status(path, failed));
}

}  // namespace

std::filesystem::path MakeTemporaryFolder(std::string_view beginning) {
  constexpr int tries = 100;
  const auto place = std::filesystem::temp_directory_path();
  std::random_device random;
  std::error_code failed;
  for (int i = 0; i < tries && !failed; ++i) {
    const auto path = place / PathOf(std::string(beginning) + std::to_string(random()));
    // Says whether the name was free.
    if (!std::filesystem::create_directory(path, failed)) continue;
    std::filesystem::permissions(path, std::filesystem::perms::owner_all, failed);
    return std::filesystem::canonical(path);
  }
  throw std::filesystem::filesystem_error("no temporary folder", place, failed);
}

// Not by std::filesystem::remove_all: where a file goes only when the last who has it open lets go
// of it, as on Windows, the library's may ask for ever for one that has just gone.
void RemoveFolder(const std::filesystem::path& folder) {
  constexpr int tries = 100;
  constexpr std::chrono::milliseconds pause(20);
  for (int i = 0; i < tries && !IsRemoved(folder); ++i) std::this_thread::sleep_for(pause);
}

}  // namespace orvane
