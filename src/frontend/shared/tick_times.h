// When the game's timers tick in real time. A front end owns the clock and the alarm.
#pragma once

#include <optional>

#include "src/frontend/shared/tick_log.h"
#include "src/ui/timer_queue.h"

namespace orvane {

// How many times as fast as real time the game runs: 1, or what the text says (that of the variable
// ORVANE_SPEED, null where it is not set), from 1 to 1000.
double GameSpeed(const char* text);

class TickTimes {
 public:
  // Timers that are on begin their first interval when they are first looked at.
  explicit TickTimes(Stage& stage);

  // In how many whole ms of the real clock the next tick is due, 0 where it is due already; nothing
  // while no timer ticks. `now` is that clock, in ms.
  std::optional<int> Wait(double now);

  // The timer whose tick begins now, which goes into the record of ticks; null where none is due.
  // One at a time, so that input and painting come between two that are due together.
  Timer* Take(double now);

 private:
  TimerQueue queue_;
  double speed_;
  TickLog log_;
};

}  // namespace orvane
