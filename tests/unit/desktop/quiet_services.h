// Services for a program in a test: no sound, no boxes, the same chance always.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "src/frontend/desktop/events.h"
#include "src/game/program.h"
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
  void ShowError(const Box& box) override { ADD_FAILURE() << box.Text; }
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

// Widgets report into the void.
class NoEvents : public Events {
 public:
  void Send(const std::function<void(Program&)>& /*event*/) override {}
};

// Widgets report to a program that a test has made; the test brings the windows up to date.
class ToProgram : public Events {
 public:
  explicit ToProgram(Program& program) : program_(program) {}
  void Send(const std::function<void(Program&)>& event) override { event(program_); }

 private:
  Program& program_;
};

}  // namespace orvane
