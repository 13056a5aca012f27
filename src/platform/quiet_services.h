// Services for a program without a player, in tools and tests: no sound, no waiting, the same
// chance always, and boxes that are cancelled at once.
#pragma once

#include <string>

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

class NoBoxes : public BoxKeeper {
 public:
  BoxAnswer Show(const Box& /*box*/) override { return BoxAnswer::Cancel; }
  void ShowError(const Box& /*box*/) override {}
};

class NoSleep : public Sleeper {
 public:
  void Sleep(int /*milliseconds*/) override {}
};

struct QuietServices {
  Services All() { return {Sound, Luck, Boxes, Time}; }

  NoSound Sound;
  NoChance Luck;
  NoBoxes Boxes;
  NoSleep Time;
};

}  // namespace orvane
