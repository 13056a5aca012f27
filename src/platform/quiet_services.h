// Services for a program without a player, in tools and tests: no sound, the same chance always,
// and no files but those that are put there.
#pragma once

#include <string>

#include "src/platform/memory_storage.h"
#include "src/platform/services.h"

namespace orvane {

class NoSound : public SoundDevice {
 public:
  std::string Send(const std::string& /*command*/) override { return {}; }
};

class NoChance : public Chance {
 public:
  float Draw() override { return 0; }
  void Reseed() override {}
};

struct QuietServices {
  Services All() { return {Sound, Luck, Files}; }

  NoSound Sound;
  NoChance Luck;
  MemoryStorage Files;
};

}  // namespace orvane
