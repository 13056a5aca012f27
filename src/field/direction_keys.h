// The arrow keys: the newest one held drives the hero, releasing it gives way to those displaced.
#pragma once

#include <optional>

#include "src/base/direction.h"

namespace orvane {

struct SharedState;

// A key goes down. Repeats of the active direction change nothing.
void DirectionDown(SharedState& state, Direction direction);

// A key comes up.
void DirectionUp(SharedState& state, Direction direction);

// The direction that drives the hero now.
std::optional<Direction> DrivingDirection(const SharedState& state);

}  // namespace orvane
