// Virtual time: it moves when a script waits and when the program sleeps, and not by itself.
#pragma once

#include "src/platform/services.h"

namespace orvane {

class VirtualClock : public Sleeper {
 public:
  // Milliseconds since the start.
  double Now() const { return now_; }
  void Restart() { now_ = 0; }
  // Moves on to a time; one that is past already changes nothing.
  void MoveTo(double time) { now_ = time > now_ ? time : now_; }
  // The time passes without a tick.
  void Sleep(int milliseconds) override { MoveTo(now_ + milliseconds); }

 private:
  double now_ = 0;
};

}  // namespace orvane
