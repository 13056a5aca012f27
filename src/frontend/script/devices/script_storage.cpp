#include "src/frontend/script/devices/script_storage.h"

#include <utility>

#include "src/platform/path_text.h"

namespace orvane {
namespace {

// Scripts may write one name in several ways, "./Item.dat".
std::string Plain(const std::string& name) {
  return TextOf(PathOf(name).lexically_normal());
}

}  // namespace

std::shared_ptr<const std::string> ScriptStorage::Open(const std::string& name) const {
  auto bytes = Read(name);
  if (!bytes) return nullptr;
  auto held = std::make_shared<std::string>(*std::move(bytes));
  open_[Plain(name)] = held;
  return held;
}

void ScriptStorage::Written(const std::string& name, const std::string& bytes) {
  const auto found = open_.find(Plain(name));
  if (found == open_.end()) return;
  if (const auto held = found->second.lock()) *held = bytes;
}

}  // namespace orvane
