#include "src/frontend/shared/chance.h"

#include <chrono>

namespace orvane {

PlayersChance::PlayersChance(std::optional<uint32_t> seed)
    : generator_(seed.value_or(0)), fixed_(seed.has_value()) {
  Reseed();
}

float PlayersChance::Draw() {
  // 24 bits fit a float exactly, so the quotient never rounds up to 1.
  return static_cast<float>(generator_() >> 8) / 16777216.0F;
}

void PlayersChance::Reseed() {
  if (fixed_) return;
  const auto now =
      static_cast<uint64_t>(std::chrono::system_clock::now().time_since_epoch().count());
  // The game reseeds several times within one tick of a coarse clock; the counter tells them apart.
  std::seed_seq sources{static_cast<uint32_t>(now), static_cast<uint32_t>(now >> 32), ++reseeds_};
  generator_.seed(sources);
}

}  // namespace orvane
