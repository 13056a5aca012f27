#include "src/platform/storage.h"

#include <utility>

#include "src/base/text.h"

namespace orvane {
namespace {

bool Matches(std::string_view name, std::string_view pattern) {
  size_t at = 0;
  size_t wanted = 0;
  // The last star, and where in the name what it stands for ends so far. To try again from there is
  // enough: what an earlier star stands for need never grow for a later one.
  size_t star = pattern.size();
  size_t end = 0;
  while (at < name.size()) {
    if (wanted < pattern.size() && pattern[wanted] == '*') {
      star = wanted++;
      end = at;
    } else if (wanted < pattern.size() && pattern[wanted] == name[at]) {
      ++wanted;
      ++at;
    } else if (star < pattern.size()) {
      wanted = star + 1;
      at = ++end;
    } else {
      return false;
    }
  }
  return pattern.find_first_not_of('*', wanted) == std::string_view::npos;
}

}  // namespace

std::shared_ptr<const std::string> Storage::Open(const std::string& name) const {
  auto bytes = Read(name);
  return bytes ? std::make_shared<const std::string>(*std::move(bytes)) : nullptr;
}

bool MatchesPattern(std::string_view name, std::string_view pattern) {
  const std::string lower_name = LowerCase(name);
  const std::string lower_pattern = LowerCase(pattern);
  if (lower_pattern.starts_with("*.")) {
    return !lower_name.empty() && Matches(std::string_view(lower_name).substr(1), lower_pattern);
  }
  return Matches(lower_name, lower_pattern);
}

}  // namespace orvane
