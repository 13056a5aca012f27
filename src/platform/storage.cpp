#include "src/platform/storage.h"

#include <utility>

#include "src/base/text.h"

namespace orvane {
namespace {

bool Matches(std::string_view name, std::string_view pattern) {
  if (pattern.empty()) return name.empty();
  if (pattern.front() == '*') {
    return Matches(name, pattern.substr(1)) || (!name.empty() && Matches(name.substr(1), pattern));
  }
  return !name.empty() && name.front() == pattern.front() &&
         Matches(name.substr(1), pattern.substr(1));
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
