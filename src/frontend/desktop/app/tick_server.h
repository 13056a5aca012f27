// Serves the game's timers in real time.
#pragma once

#include <QElapsedTimer>
#include <QTimer>

#include "src/frontend/shared/tick_times.h"

namespace orvane {

class Events;

class TickServer {
 public:
  TickServer(Stage& stage, Events& events);

  // Sees to it that the next tick comes when it is due. Called after every event, and before
  // everything that waits within one.
  void Arm();
  // No tick until armed again.
  void Stop() { alarm_.stop(); }

 private:
  double Now() const;  // ms of the real clock
  void Serve();

  TickTimes times_;
  Events& events_;
  QElapsedTimer clock_;
  QTimer alarm_;
};

}  // namespace orvane
