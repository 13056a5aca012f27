#include "src/frontend/script/devices/chance.h"

namespace orvane {

float ScriptChance::Draw() {
  if (queue_.empty()) return draws_.Draw();
  const float value = queue_.front();
  queue_.pop_front();
  return value;
}

void ScriptChance::Seed(int64_t seed) {
  const auto bits = static_cast<uint64_t>(seed);
  draws_.Seed({static_cast<uint32_t>(bits), static_cast<uint32_t>(bits >> 32)});
}

}  // namespace orvane
