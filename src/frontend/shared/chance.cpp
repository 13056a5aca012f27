#include "src/frontend/shared/chance.h"

#include <chrono>

#include "src/platform/clock_seed.h"

namespace orvane {
namespace {

int64_t Milliseconds() {
  using std::chrono::duration_cast;
  return duration_cast<std::chrono::milliseconds>(
             std::chrono::system_clock::now().time_since_epoch())
      .count();
}

}  // namespace

PlayersChance::PlayersChance(std::optional<uint32_t> seed)
    : fixed_(seed.has_value()), first_(Milliseconds()) {
  if (seed) draws_.Seed({*seed});
  Reseed();
}

void PlayersChance::Reseed() {
  if (fixed_) return;
  // The game reseeds several times within one tick of a coarse clock; the count tells them apart.
  draws_.Seed(ClockSeed(static_cast<uint64_t>(first_),
                        static_cast<uint32_t>(Milliseconds() - first_), ++reseeds_));
}

}  // namespace orvane
