#include "src/frontend/shared/pad_state.h"

#include <algorithm>
#include <cmath>

namespace orvane {
namespace {

constexpr double kWayIn = 0.5;
constexpr double kWayOut = 0.35;
constexpr double kTurnsOver = 1.25;  // how much longer the other axis must be to take over

}  // namespace

void PadStick::Add(double x, double y, PadState& state) {
  const double length = std::max(std::abs(x), std::abs(y));
  if (length < (held_ ? kWayOut : kWayIn)) {
    held_ = false;
    return;
  }
  const double along = upright_ ? std::abs(y) : std::abs(x);
  const double across = upright_ ? std::abs(x) : std::abs(y);
  if (across > along * (held_ ? kTurnsOver : 1)) upright_ = !upright_;
  held_ = true;
  const PadButton direction = upright_ ? (y < 0 ? PadButton::Up : PadButton::Down)
                                       : (x < 0 ? PadButton::Left : PadButton::Right);
  state[static_cast<size_t>(direction)] = true;
}

}  // namespace orvane
