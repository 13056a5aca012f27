// Serves the game's timers in real time.
#pragma once

#include <QElapsedTimer>
#include <QTimer>

#include "src/frontend/shared/tick_log.h"
#include "src/ui/timer_queue.h"

namespace orvane {

class Events;

// How many times as fast as real time the game runs: 1, or what the text says (that of the variable
// ORVANE_SPEED, null where it is not set), from 1 to 1000.
double GameSpeed(const char* text);

class TickServer {
 public:
  TickServer(Stage& stage, Events& events);

  // Sees to it that the next tick comes when it is due. Called after every event, and before
  // everything that waits within one.
  void Arm();
  // No tick until armed again.
  void Stop() { alarm_.stop(); }

 private:
  // Milliseconds of the game, which tests let run faster than those of the world.
  double Now() const;
  void Serve();

  TimerQueue queue_;
  Events& events_;
  QElapsedTimer clock_;
  QTimer alarm_;
  double speed_;
  TickLog log_;
};

}  // namespace orvane
