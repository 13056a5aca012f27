#include "src/frontend/shared/tick_times.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace orvane {

double GameSpeed(const char* text) {
  constexpr double fastest = 1000;
  const double speed = text == nullptr ? 1 : std::strtod(text, nullptr);
  // What is no number at all does not count either.
  return speed >= 1 ? std::min(speed, fastest) : 1;
}

TickTimes::TickTimes(Stage& stage)
    : queue_(stage, Pacing::RealTime), speed_(GameSpeed(std::getenv("ORVANE_SPEED"))) {}

std::optional<int> TickTimes::Wait(double now) {
  constexpr double longest = 1e6;
  const double game_now = now * speed_;
  const auto due = queue_.NextDue(game_now);
  if (!due) return std::nullopt;
  return static_cast<int>(std::ceil(std::clamp((*due - game_now) / speed_, 0.0, longest)));
}

Timer* TickTimes::Take(double now) {
  const double game_now = now * speed_;
  Timer* timer = queue_.FirstDue(game_now);
  if (timer == nullptr) return nullptr;
  log_.Write(*timer, game_now);
  queue_.Begin(*timer, game_now);
  return timer;
}

}  // namespace orvane
