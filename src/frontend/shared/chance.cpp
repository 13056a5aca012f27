#include "src/frontend/shared/chance.h"

#include <chrono>

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
  // The clock as it was first and what has passed since, so that one seed is close to the next and
  // takes little room in a record. The game reseeds several times within one tick of a coarse
  // clock; the counter tells them apart.
  const auto first = static_cast<uint64_t>(first_);
  draws_.Seed({static_cast<uint32_t>(first), static_cast<uint32_t>(first >> 32),
               static_cast<uint32_t>(Milliseconds() - first_), ++reseeds_});
}

}  // namespace orvane
