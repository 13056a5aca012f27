// Seeds from the clock, of which one follows the other.
#pragma once

#include <cstdint>
#include <optional>

#include "src/platform/seeded_draws.h"

namespace orvane {

// `first` is the clock in ms when chance came into being, `passed` the ms since, `count` how many
// seeds there have been with this one. One is close to the next, which takes little room in a
// record.
SeededDraws::Words ClockSeed(uint64_t first, uint32_t passed, uint32_t count);

// The seed that comes next after another, so many ms later; nothing where the other is not the
// clock's.
std::optional<SeededDraws::Words> SeedAfter(const SeededDraws::Words& seed, uint32_t delay);

// How many ms later than the other one a seed was taken that comes next after it; nothing where it
// does not.
std::optional<uint32_t> DelayBetween(const SeededDraws::Words& seed,
                                     const SeededDraws::Words& next);

}  // namespace orvane
