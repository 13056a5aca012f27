// What the game asks of the front end that runs it.
#pragma once

#include <string>

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
};

enum class BoxButtons { Ok, OkCancel, YesNo };
enum class BoxAnswer { Ok, Cancel, Yes, No };

// A message box.
struct Box {
  std::string Text;
  std::string Title;
  BoxButtons Buttons = BoxButtons::Ok;
};

// Shows boxes. Timers go on while one stands.
class BoxKeeper {
 public:
  virtual ~BoxKeeper() = default;
  // Shows the box and returns the button pressed. A closed OK and Cancel box counts as Cancel.
  virtual BoxAnswer Show(const Box& box) = 0;
  // Shows the box of a run-time error, with an OK button.
  virtual void ShowError(const Box& box) = 0;
};

// Time, and how the game stops it.
class Sleeper {
 public:
  virtual ~Sleeper() = default;
  // Stops the whole program: no timer ticks and no input is taken, but windows may be repainted.
  virtual void Sleep(int milliseconds) = 0;
};

// All of them, owned by the front end; they outlive the program.
struct Services {
  SoundDevice& Sound;
  Chance& Luck;
  BoxKeeper& Boxes;
  Sleeper& Time;
};

}  // namespace orvane
