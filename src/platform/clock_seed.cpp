#include "src/platform/clock_seed.h"

namespace orvane {
namespace {

// The words: the first two are the clock's.
constexpr size_t kPassed = 2;
constexpr size_t kCount = 3;
constexpr size_t kWords = 4;

}  // namespace

SeededDraws::Words ClockSeed(uint64_t first, uint32_t passed, uint32_t count) {
  return {static_cast<uint32_t>(first), static_cast<uint32_t>(first >> 32), passed, count};
}

std::optional<SeededDraws::Words> SeedAfter(const SeededDraws::Words& seed, uint32_t delay) {
  if (seed.size() != kWords) return std::nullopt;
  SeededDraws::Words next = seed;
  next[kPassed] += delay;
  ++next[kCount];
  return next;
}

std::optional<uint32_t> DelayBetween(const SeededDraws::Words& seed,
                                     const SeededDraws::Words& next) {
  if (seed.size() != kWords || next.size() != kWords) return std::nullopt;
  const uint32_t delay = next[kPassed] - seed[kPassed];
  return SeedAfter(seed, delay) == next ? std::optional(delay) : std::nullopt;
}

}  // namespace orvane
