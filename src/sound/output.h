// What pulls the mixer: the machine's audio device or, where there is none, the clock.
#pragma once

#include <chrono>
#include <cstddef>
#include <functional>
#include <memory>

namespace orvane {

// Writes the next frames, left and right in turn, within -1 to 1; `from` is the time that the first
// of them stands for: what is asked for later than that shall be heard as much later. Called on a
// thread of the output's own, from its opening until it is destroyed. Returns whether anything
// plays: while nothing does, it may be called more seldom.
using PullFunction =
    std::function<bool(float* out, std::size_t frames, std::chrono::steady_clock::time_point from)>;

class Output {
 public:
  Output() = default;
  Output(const Output&) = delete;
  Output& operator=(const Output&) = delete;
  virtual ~Output() = default;
  // How long after the time that it stands for a frame is heard, in seconds, as far as is known
  // here.
  virtual double Delay() const = 0;
};

// The default audio device at `rate` frames a second. Null if there is none, or only a dummy that
// makes no sound. May take tenths of a second.
std::unique_ptr<Output> OpenDevice(int rate, PullFunction pull);

// Pulls as much as the time that passes, and throws it away.
std::unique_ptr<Output> OpenClock(int rate, PullFunction pull);

}  // namespace orvane
