#include "src/frontend/script/devices/chance.h"

#include <cmath>

namespace orvane {
namespace {

// A single-precision value has 24 bits: more of the generator's would round some draws up to 1.
constexpr int kSpareBits = 32 - 24;
constexpr int kPrecision = 24;

}  // namespace

float ScriptChance::Draw() {
  if (queue_.empty()) {
    const auto bits = static_cast<uint32_t>(generator_()) >> kSpareBits;
    return std::ldexp(static_cast<float>(bits), -kPrecision);
  }
  const float value = queue_.front();
  queue_.pop_front();
  return value;
}

void ScriptChance::Seed(int64_t seed) {
  const auto bits = static_cast<uint64_t>(seed);
  std::seed_seq sequence = {static_cast<uint32_t>(bits), static_cast<uint32_t>(bits >> 32)};
  generator_.seed(sequence);
}

}  // namespace orvane
