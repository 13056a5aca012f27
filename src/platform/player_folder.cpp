#include "src/platform/player_folder.h"

#include <system_error>

#include "src/platform/durable_file.h"
#include "src/platform/path_text.h"
#include "src/platform/system_message.h"
#include "src/platform/whole_file.h"

namespace orvane {
namespace {

bool IsSave(const std::filesystem::path& path) {
  return path.extension() == ".sav";
}

// Whether `own` is there and needs no renewal after `installed`.
bool Stands(const std::filesystem::path& own, const std::string& installed) {
  std::error_code failed;
  if (!std::filesystem::is_regular_file(own, failed)) return false;
  return IsSave(own) || ReadWholeFile(own) == installed;
}

}  // namespace

std::string PreparePlayerFolder(const std::filesystem::path& installed,
                                const std::filesystem::path& own) {
  std::error_code failed;
  std::filesystem::create_directories(own, failed);
  if (failed) return "cannot make the folder " + TextOf(own) + ": " + SystemMessage(failed);
  auto entries = std::filesystem::recursive_directory_iterator(installed, failed);
  for (; !failed && entries != std::filesystem::recursive_directory_iterator();
       entries.increment(failed)) {
    const auto to = own / entries->path().lexically_relative(installed);
    if (entries->is_directory()) {
      std::filesystem::create_directories(to, failed);
      if (failed) return "cannot make the folder " + TextOf(to) + ": " + SystemMessage(failed);
      continue;
    }
    const auto bytes = ReadWholeFile(entries->path());
    if (!bytes) return "cannot read " + TextOf(entries->path());
    if (Stands(to, *bytes)) continue;
    if (const std::string failure = ReplaceFileDurably(to, *bytes); !failure.empty())
      return "cannot write " + TextOf(to) + ": " + failure;
  }
  if (failed) return "cannot read the folder " + TextOf(installed) + ": " + SystemMessage(failed);
  return {};
}

}  // namespace orvane
