// The way home: what a player in earnest does to come back to the field, or to an end.
#pragma once

#include <optional>
#include <vector>

#include "src/game/program.h"

namespace orvane::monkey {

// The controls of one kind on a screen that a player can click now, in the screen's order.
std::vector<Control*> UsableOf(const Screen& screen, ControlKind kind);

// Whether the party can walk, or the title stands.
bool IsHome(Program& program);

// Does the next thing on the way. False when there is none.
bool StepHome(Program& program);

// The way up to where a dragon waits, from one cell of the map to the next; nothing where none
// leads there.
std::optional<Direction> WayUp(const State& state);

}  // namespace orvane::monkey
