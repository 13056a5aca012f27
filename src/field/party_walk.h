// The party on the map: its steps, what it treads on, and its figure.
#pragma once

#include "src/ui/control.h"

namespace orvane {

struct Game;

// One step of the active direction, or the events of the tile on which the party stands; `then`
// follows, where a full bag is warned of after the answer.
void WalkOneStep(Game& game, int counter, const Handler& then);

// Draws the walking figure; the counter picks one of its three frames, 0 the standing one.
void DrawHero(Game& game, int counter);

}  // namespace orvane
