#include "tests/monkey/world.h"

#include <algorithm>
#include <utility>

#include "src/core/save_file.h"

namespace orvane::monkey {

std::string WildSound::Send(const std::string& command) {
  if (!command.starts_with("status")) return {};
  if (dice_.OnceIn(200)) return {};
  return dice_.OnceIn(100) ? "stopped" : "playing";
}

WildChance::WildChance(Dice& dice, uint32_t seed) : dice_(dice) {
  draws_.Seed({seed});
}

float WildChance::Draw() {
  constexpr float meets = 100.5F / 150;
  const float drawn = draws_.Draw();
  return dice_.OnceIn(60) ? meets : drawn;
}

void WildDisk::Replace(const std::string& name, const std::string& bytes, Outcome outcome) {
  const auto old = Files.find(name);
  const size_t before = old == Files.end() ? 0 : old->second.size();
  const size_t wanted = std::max(before, size_t{kSaveFileSize});
  if (bytes.size() != wanted) {
    Fault = "a save of " + std::to_string(bytes.size()) + " bytes for " + std::to_string(wanted);
  }
  // What is read back is what was written.
  GameRecord record;
  UnpackRecord(bytes, record);
  if (PackRecord(record) != bytes.substr(0, kSaveFileSize)) Fault = "a save that cannot be read";
  MemoryStorage::Replace(name, bytes, std::move(outcome));
}

}  // namespace orvane::monkey
