#include "src/platform/player_folder.h"

#include <fstream>
#include <iterator>
#include <optional>
#include <system_error>

#include "src/platform/durable_file.h"

namespace orvane {
namespace {

std::optional<std::string> ReadWhole(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file) return std::nullopt;
  std::string bytes{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
  if (file.bad()) return std::nullopt;
  return bytes;
}

bool IsSave(const std::filesystem::path& path) {
  return path.extension() == ".sav";
}

// Whether `own` is there and needs no renewal after `installed`.
bool Stands(const std::filesystem::path& own, const std::string& installed) {
  std::error_code failed;
  if (!std::filesystem::is_regular_file(own, failed)) return false;
  return IsSave(own) || ReadWhole(own) == installed;
}

}  // namespace

std::string PreparePlayerFolder(const std::filesystem::path& installed,
                                const std::filesystem::path& own) {
  std::error_code failed;
  std::filesystem::create_directories(own, failed);
  if (failed) return "cannot make the folder " + own.string() + ": " + failed.message();
  auto entries = std::filesystem::recursive_directory_iterator(installed, failed);
  for (; !failed && entries != std::filesystem::recursive_directory_iterator();
       entries.increment(failed)) {
    const auto to = own / entries->path().lexically_relative(installed);
    if (entries->is_directory()) {
      std::filesystem::create_directories(to, failed);
      if (failed) return "cannot make the folder " + to.string() + ": " + failed.message();
      continue;
    }
    const auto bytes = ReadWhole(entries->path());
    if (!bytes) return "cannot read " + entries->path().string();
    if (Stands(to, *bytes)) continue;
    if (!ReplaceFileDurably(to.string(), *bytes)) return "cannot write " + to.string();
  }
  if (failed) return "cannot read the folder " + installed.string() + ": " + failed.message();
  return {};
}

}  // namespace orvane
