#include "src/frontend/desktop/tick_server.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "src/frontend/desktop/events.h"
#include "src/game/program.h"

namespace orvane {
namespace {

// How many times as fast as real time the game runs: 1, or what ORVANE_SPEED says, from 1 to 1000.
double Speed() {
  constexpr double fastest = 1000;
  const char* text = std::getenv("ORVANE_SPEED");
  return text == nullptr ? 1 : std::clamp(std::atof(text), 1.0, fastest);
}

}  // namespace

TickServer::TickServer(Stage& stage, Events& events)
    : queue_(stage, Pacing::RealTime), events_(events), speed_(Speed()) {
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
