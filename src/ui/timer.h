// Interval timers.
#pragma once

#include <string>

#include "src/ui/control.h"

namespace orvane {

struct TimerValues {
  bool Running = false;  // the Enabled property; write it with SetEnabled
  int Milliseconds = 0;  // the Interval property; write it with SetInterval
  int Pace = 0;          // the least real period in ms that a front end with real time keeps
};

// A timer that ticks on the one thread of the program while it is enabled and its screen is loaded.
// Late ticks do not pile up. Enabling restarts the interval; disabling takes effect at once, also
// from within a tick. A tick is never entered again while it runs, nor while a box that it asked
// for stands.
class Timer : public ControlOf<TimerValues, ControlKind::Timer> {
 public:
  Timer(Screen& screen, std::string name, int interval, int pace = 0)
      : ControlOf(Holder(screen), std::move(name), {}, {false, interval, pace}) {}

  bool IsEnabled() const { return Running; }
  void SetEnabled(bool enabled);
  int Interval() const { return Milliseconds; }
  // Sets the interval in milliseconds and restarts it; at 0 the timer never ticks. Below 0 counts
  // as 0.
  void SetInterval(int milliseconds);
  void RestoreDesign() override;

  // Its screen is loaded, it is enabled, and it has an interval.
  bool Ticks() const;

  Handler OnTick;

  // Bookkeeping of the queue that serves the ticks.
  bool Restarted = true;  // the interval starts anew as soon as the queue looks
  bool InTick = false;    // its tick runs, or waits for the answer to a box
  double Due = 0;         // when the next tick is due, in ms of the queue's clock
};

}  // namespace orvane
