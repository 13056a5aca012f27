#include "src/platform/memory_storage.h"

#include <utility>

namespace orvane {

std::optional<std::string> MemoryStorage::Read(const std::string& name) const {
  const auto found = Files.find(name);
  if (found == Files.end()) return std::nullopt;
  return found->second;
}

std::vector<std::string> MemoryStorage::List(const std::string& pattern) const {
  std::vector<std::string> names;
  for (const auto& [name, bytes] : Files) {
    if (name.find('/') == std::string::npos && MatchesPattern(name, pattern)) names.push_back(name);
  }
  return names;
}

void MemoryStorage::Replace(const std::string& name, const std::string& bytes, Outcome outcome) {
  Waiting replacement{name, bytes, std::move(outcome)};
  if (AnswersLater) return waiting_.push_back(std::move(replacement));
  CarryOut(replacement);
}

void MemoryStorage::Settle() {
  if (waiting_.empty()) return;
  const Waiting oldest = std::move(waiting_.front());
  waiting_.erase(waiting_.begin());
  CarryOut(oldest);
}

void MemoryStorage::CarryOut(const Waiting& replacement) {
  if (Failure.empty()) Files[replacement.Name] = replacement.Bytes;
  replacement.Tell(Failure);
}

}  // namespace orvane
