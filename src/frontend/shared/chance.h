// Chance for a real player.
#pragma once

#include <cstdint>
#include <optional>

#include "src/platform/services.h"

namespace orvane {

class PlayersChance : public Chance {
 public:
  // With a seed, the draws are the same in every run and Reseed does nothing.
  explicit PlayersChance(std::optional<uint32_t> seed);

  float Draw() override { return draws_.Draw(); }
  void Reseed() override;
  const SeededDraws* Source() const override { return &draws_; }

 private:
  SeededDraws draws_;
  bool fixed_;
  int64_t first_ = 0;  // when it was made, in ms of the system's clock
  uint32_t reseeds_ = 0;
};

}  // namespace orvane
