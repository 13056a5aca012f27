#include "src/frontend/desktop/app/tick_server.h"

#include "src/frontend/shared/events.h"
#include "src/game/program.h"

namespace orvane {

TickServer::TickServer(Stage& stage, Events& events) : times_(stage), events_(events) {
  clock_.start();
  alarm_.setTimerType(Qt::PreciseTimer);
  alarm_.setSingleShot(true);
  QObject::connect(&alarm_, &QTimer::timeout, &alarm_, [this] { Serve(); });
}

double TickServer::Now() const {
  constexpr double nanoseconds = 1e6;
  return static_cast<double>(clock_.nsecsElapsed()) / nanoseconds;
}

void TickServer::Arm() {
  const auto wait = times_.Wait(Now());
  if (!wait) return alarm_.stop();
  alarm_.start(*wait);
}

void TickServer::Serve() {
  Timer* timer = times_.Take(Now());
  if (timer == nullptr) return Arm();
  events_.Send([timer](Program& program) { program.Tick(*timer); });
}

}  // namespace orvane
