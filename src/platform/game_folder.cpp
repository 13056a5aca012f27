#include "src/platform/game_folder.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <system_error>

#include "src/base/error.h"
#include "src/platform/durable_file.h"

namespace orvane {
namespace {

bool Matches(const char* name, const char* pattern) {
  if (*pattern == '*')
    return Matches(name, pattern + 1) || (*name != 0 && Matches(name + 1, pattern));
  if (*name == 0 || *pattern == 0) return *name == *pattern;
  return *name == *pattern && Matches(name + 1, pattern + 1);
}

}  // namespace

std::string GameFolder::PathText() const {
  std::string text = path_.string();
  while (text.size() > 1 && text.back() == '/') text.pop_back();
  return text;
}

std::optional<std::string> GameFolder::Read(const std::string& name) const {
  std::error_code failed;
  if (!std::filesystem::is_regular_file(path_ / name, failed)) return std::nullopt;
  std::ifstream file(path_ / name, std::ios::binary);
  if (!file) return std::nullopt;
  std::string bytes((std::istreambuf_iterator<char>(file)), std::istreambuf_iterator<char>());
  if (file.bad()) return std::nullopt;
  return bytes;
}

std::vector<std::string> GameFolder::List(const std::string& pattern) const {
  std::vector<std::string> names;
  std::error_code failed;
  for (const auto& entry : std::filesystem::directory_iterator(path_, failed)) {
    const std::string name = entry.path().filename().string();
    if (entry.is_regular_file(failed) && MatchesPattern(name, pattern)) names.push_back(name);
  }
  std::sort(names.begin(), names.end());
  return names;
}

void GameFolder::Replace(const std::string& name, const std::string& bytes) const {
  if (!ReplaceFileDurably((path_ / name).string(), bytes)) throw RunError(ErrorKind::File, name);
}

bool MatchesPattern(const std::string& name, const std::string& pattern) {
  return Matches(name.c_str(), pattern.c_str());
}

}  // namespace orvane
