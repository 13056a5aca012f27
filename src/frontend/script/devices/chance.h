// Chance that a script can dictate.
#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>

#include "src/platform/services.h"

namespace orvane {

class ScriptChance : public Chance {
 public:
  // The next queued value, or one of the generator when none is queued.
  float Draw() override;
  // Does nothing: a script's runs repeat.
  void Reseed() override {}
  const SeededDraws* Source() const override { return &draws_; }

  // Queues a value; it must be in [0, 1) as a single-precision number too.
  void Queue(float value) { queue_.push_back(value); }
  size_t Left() const { return queue_.size(); }
  void Clear() { queue_.clear(); }
  void Seed(int64_t seed);

 private:
  std::deque<float> queue_;
  SeededDraws draws_;
};

}  // namespace orvane
