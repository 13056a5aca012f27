#include "src/platform/temporary_folder.h"

#include <random>
#include <string>
#include <system_error>

#include "src/platform/path_text.h"

namespace orvane {

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

}  // namespace orvane
