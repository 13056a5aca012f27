// Chance that is dictated.
#pragma once

#include <utility>
#include <vector>

#include "src/platform/services.h"

namespace orvane {

// Gives the draws that it was made with, in order, and then 0.
class FixedChance : public Chance {
 public:
  explicit FixedChance(std::vector<float> draws = {}) : draws_(std::move(draws)) {}

  float Draw() override { return Drawn < draws_.size() ? draws_[Drawn++] : (++Drawn, 0.0F); }
  void Reseed() override {}

  size_t Drawn = 0;  // how often it was asked

 private:
  std::vector<float> draws_;
};

}  // namespace orvane
