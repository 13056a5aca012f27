// Services for screens that are only looked at: no sound, no boxes, the same chance always.
#pragma once

#include <string>

#include "src/platform/services.h"

namespace orvane::contact {

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

struct Quiet {
  Services All() { return {Sound, Luck, Boxes, Time}; }

  NoSound Sound;
  NoChance Luck;
  NoBoxes Boxes;
  NoSleep Time;
};

}  // namespace orvane::contact
