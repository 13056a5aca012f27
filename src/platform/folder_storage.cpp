#include "src/platform/folder_storage.h"

#include <algorithm>
#include <system_error>

#include "src/platform/path_text.h"
#include "src/platform/whole_file.h"

namespace orvane {

std::string FolderStorage::FolderName() const {
  std::string text = TextOf(path_);
  constexpr auto separator = static_cast<char>(std::filesystem::path::preferred_separator);
  while (text.size() > 1 && (text.back() == '/' || text.back() == separator)) text.pop_back();
  return text;
}

std::optional<std::string> FolderStorage::Read(const std::string& name) const {
  const std::filesystem::path file = path_ / PathOf(name);
  std::error_code failed;
  if (!std::filesystem::is_regular_file(file, failed)) return std::nullopt;
  return ReadWholeFile(file);
}

std::vector<std::string> FolderStorage::List(const std::string& pattern) const {
  std::vector<std::string> names;
  std::error_code failed;
  for (const auto& entry : std::filesystem::directory_iterator(path_, failed)) {
    const std::string name = TextOf(entry.path().filename());
    if (entry.is_regular_file(failed) && MatchesPattern(name, pattern)) names.push_back(name);
  }
  std::sort(names.begin(), names.end());
  return names;
}

void FolderStorage::Replace(const std::string& name, const std::string& bytes, Outcome outcome) {
  outcome(replace_(path_ / PathOf(name), bytes));
}

}  // namespace orvane
