// Chance that tells what it was asked for.
#pragma once

#include <string>

#include "src/platform/services.h"

namespace orvane {

// Notes in which order the generator is seeded (s) and drawn from (d). Every draw is 0.
class NotedChance : public Chance {
 public:
  float Draw() override {
    Calls += 'd';
    return 0;
  }
  void Reseed() override { Calls += 's'; }

  std::string Calls;
};

}  // namespace orvane
