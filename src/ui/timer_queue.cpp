#include "src/ui/timer_queue.h"

#include <algorithm>

namespace orvane {

TimerQueue::TimerQueue(const Stage& stage, Pacing pacing) : stage_(stage), pacing_(pacing) {
  for (const Screen* screen : stage.Screens()) {
    for (Control* control : screen->Controls()) {
      if (control->Kind() == ControlKind::Timer) timers_.push_back(static_cast<Timer*>(control));
    }
  }
}

double TimerQueue::Period(const Timer& timer) const {
  return pacing_ == Pacing::AsAsked ? timer.Interval() : std::max(timer.Interval(), timer.Pace);
}

void TimerQueue::Arm(double now) {
  for (Timer* timer : timers_) {
    if (!timer->Restarted || !timer->Ticks()) continue;
    timer->Restarted = false;
    timer->Due = now + Period(*timer);
  }
}

std::optional<double> TimerQueue::NextDue(double now) {
  Arm(now);
  if (!stage_.TimeRuns()) return std::nullopt;
  std::optional<double> next;
  for (const Timer* timer : timers_) {
    if (timer->Ticks() && !timer->InTick && (!next || timer->Due < *next)) next = timer->Due;
  }
  return next;
}

Timer* TimerQueue::FirstDue(double now) {
  Arm(now);
  if (!stage_.TimeRuns()) return nullptr;
  Timer* first = nullptr;
  for (Timer* timer : timers_) {
    if (!timer->Ticks() || timer->InTick || timer->Due > now) continue;
    if (first == nullptr || timer->Due < first->Due) first = timer;
  }
  return first;
}

void TimerQueue::Begin(Timer& timer, double now) {
  timer.Due += Period(timer);
  if (timer.Due <= now) timer.Due = now + Period(timer);
}

}  // namespace orvane
