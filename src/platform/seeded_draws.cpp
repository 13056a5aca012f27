#include "src/platform/seeded_draws.h"

#include <cmath>
#include <utility>

namespace orvane {
namespace {

// A single-precision value has 24 bits: more of the generator's would round some draws up to 1.
constexpr int kPrecision = 24;
constexpr int kSpareBits = 32 - kPrecision;

}  // namespace

void SeededDraws::Seed(Words words) {
  words_ = std::move(words);
  ++seedings_;
  drawn_ = 0;
  if (words_.size() <= 1) {
    generator_.seed(words_.empty() ? std::mt19937::default_seed : words_.front());
    return;
  }
  std::seed_seq sequence(words_.begin(), words_.end());
  generator_.seed(sequence);
}

float SeededDraws::Draw() {
  ++drawn_;
  const auto bits = static_cast<uint32_t>(generator_()) >> kSpareBits;
  return std::ldexp(static_cast<float>(bits), -kPrecision);
}

}  // namespace orvane
