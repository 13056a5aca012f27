// The arrow keys: the newest one held drives the hero, releasing it gives way to those displaced.
#pragma once

namespace orvane {

struct SharedState;

enum class Direction { Up = 1, Down = 2, Left = 3, Right = 4 };

// A key goes down. Repeats of the active direction change nothing.
void DirectionDown(SharedState& state, Direction direction);

// A key comes up.
void DirectionUp(SharedState& state, Direction direction);

}  // namespace orvane
