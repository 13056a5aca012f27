// Serves the timers of a program in the order of their due times, in real or in virtual time.
#pragma once

#include <optional>
#include <vector>

#include "src/ui/stage.h"
#include "src/ui/timer.h"

namespace orvane {

// Which period a timer is served with.
enum class Pacing {
  AsAsked,   // its Interval
  RealTime,  // its Interval, but no less than its Pace
};

class TimerQueue {
 public:
  TimerQueue(const Stage& stage, Pacing pacing);

  // When the next tick is due, in ms, or nothing while no timer ticks or the stage's time stands.
  // `now` is the queue's clock in ms; timers enabled since the last look start their interval
  // there.
  std::optional<double> NextDue(double now);

  // The timer whose tick is due first, at `now` or before, or null, as while the stage's time
  // stands. A timer within its tick is passed over, so one that is late ticks once, as soon as it
  // can.
  Timer* FirstDue(double now);

  // Tells that a timer's tick begins at `now`; sets when the next one is due.
  void Begin(Timer& timer, double now);

 private:
  double Period(const Timer& timer) const;
  void Arm(double now);

  const Stage& stage_;
  std::vector<Timer*> timers_;
  Pacing pacing_;
};

}  // namespace orvane
