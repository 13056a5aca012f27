// What surrounds the program that the monkey plays: services that are not to be foreseen.
#pragma once

#include <cstddef>
#include <map>
#include <string>

#include "src/platform/memory_storage.h"
#include "src/platform/services.h"
#include "tests/monkey/dice.h"

namespace orvane::monkey {

using Files = std::map<std::string, std::string>;

// Answers as devices of all kinds do: it plays, it has stopped, it is not there.
class WildSound : public SoundDevice {
 public:
  explicit WildSound(Dice& dice) : dice_(dice) {}
  std::string Send(const std::string& command) override;

 private:
  Dice& dice_;
};

// Draws of a generator, among them more that bring fights than there would be.
class WildChance : public Chance {
 public:
  WildChance(Dice& dice, uint32_t seed);
  float Draw() override;
  void Reseed() override {}
  const SeededDraws* Source() const override { return &draws_; }

 private:
  Dice& dice_;
  SeededDraws draws_;
};

// A disk that may answer later, and fail. What is written is looked at.
class WildDisk : public MemoryStorage {
 public:
  void Replace(const std::string& name, const std::string& bytes, Outcome outcome) override;

  // What was wrong about a save that was written; empty when nothing was.
  std::string Fault;
};

}  // namespace orvane::monkey
