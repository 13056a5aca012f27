// The way home: what a player in earnest does to come back to the field, or to an end.
#pragma once

#include <optional>

#include "src/game/program.h"

namespace orvane::monkey {

// Whether the party can walk, or the title stands.
bool IsHome(Program& program);

// Does the next thing on the way. False when there is none.
bool StepHome(Program& program);

// The way up to where a dragon waits, from one cell of the map to the next; nothing where none
// leads there.
std::optional<Direction> WayUp(const State& state);

}  // namespace orvane::monkey
