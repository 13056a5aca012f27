// Virtual time: it moves when a script waits and while the program holds, and not by itself.
#pragma once

namespace orvane {

class VirtualClock {
 public:
  // Milliseconds since the start.
  double Now() const { return now_; }
  void Restart() { now_ = 0; }
  // Moves on to a time; one that is past already changes nothing.
  void MoveTo(double time) { now_ = time > now_ ? time : now_; }

 private:
  double now_ = 0;
};

}  // namespace orvane
