// Chance for a real player.
#pragma once

#include <cstdint>
#include <optional>
#include <random>

#include "src/platform/services.h"

namespace orvane {

class PlayersChance : public Chance {
 public:
  // With a seed, the draws are the same in every run and Reseed does nothing.
  explicit PlayersChance(std::optional<uint32_t> seed);

  float Draw() override;
  void Reseed() override;

 private:
  std::mt19937 generator_;
  bool fixed_;
  uint32_t reseeds_ = 0;
};

}  // namespace orvane
