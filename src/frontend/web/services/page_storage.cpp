#include "src/frontend/web/services/page_storage.h"

#include <utility>

namespace orvane {

void PageStorage::Replace(const std::string& name, const std::string& bytes, Outcome outcome) {
  const int number = ++asked_;
  requests_[number] = {name, bytes, std::move(outcome)};
  page_.Keep(number, name, bytes);
}

void PageStorage::Kept(int number, const std::string& failure) {
  const auto found = requests_.find(number);
  if (found == requests_.end()) return;
  const Request request = std::move(found->second);
  requests_.erase(found);
  if (failure.empty()) Files[request.Name] = request.Bytes;
  request.Tell(failure);
}

}  // namespace orvane
