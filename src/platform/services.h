// What the game asks of the front end that runs it.
#pragma once

#include <string>

#include "src/platform/seeded_draws.h"
#include "src/platform/storage.h"

namespace orvane {

// The sound device: named channels that text commands open, ask, play and close.
class SoundDevice {
 public:
  virtual ~SoundDevice() = default;
  // Carries out a command and returns its reply, empty when there is none or it failed. Never
  // throws.
  virtual std::string Send(const std::string& command) = 0;
};

// Chance: draws are uniform in [0, 1), in single precision.
class Chance {
 public:
  virtual ~Chance() = default;
  virtual float Draw() = 0;
  // Seeds the generator from the clock.
  virtual void Reseed() = 0;
  // The generator behind the draws, so that who records them need only note its seeds; null where
  // there is none. A draw may come from elsewhere all the same.
  virtual const SeededDraws* Source() const { return nullptr; }
};

// All of them, owned by the front end; they outlive the program.
struct Services {
  SoundDevice& Sound;
  Chance& Luck;
  Storage& Files;
};

}  // namespace orvane
