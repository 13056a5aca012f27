#include "src/frontend/desktop/app/tick_server.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "src/frontend/desktop/windows/events.h"
#include "src/game/program.h"

namespace orvane {
double GameSpeed(const char* text) {
  constexpr double fastest = 1000;
  const double speed = text == nullptr ? 1 : std::atof(text);
  // What is no number at all does not count either.
  return speed >= 1 ? std::min(speed, fastest) : 1;
}

TickServer::TickServer(Stage& stage, Events& events)
    : queue_(stage, Pacing::RealTime),
      events_(events),
      speed_(GameSpeed(std::getenv("ORVANE_SPEED"))) {
  clock_.start();
  alarm_.setTimerType(Qt::PreciseTimer);
  alarm_.setSingleShot(true);
  QObject::connect(&alarm_, &QTimer::timeout, &alarm_, [this] { Serve(); });
}

double TickServer::Now() const {
  constexpr double nanoseconds = 1e6;
  return static_cast<double>(clock_.nsecsElapsed()) / nanoseconds * speed_;
}

void TickServer::Arm() {
  const double now = Now();
  const auto due = queue_.NextDue(now);
  if (!due) return alarm_.stop();
  constexpr double longest = 1e6;
  alarm_.start(static_cast<int>(std::ceil(std::clamp((*due - now) / speed_, 0.0, longest))));
}

void TickServer::Serve() {
  const double now = Now();
  Timer* timer = queue_.FirstDue(now);
  if (timer == nullptr) return Arm();
  // One tick at a time, so that input and painting come between two that are due together.
  log_.Write(*timer, now);
  queue_.Begin(*timer, now);
  events_.Send([timer](Program& program) { program.Tick(*timer); });
}

}  // namespace orvane
