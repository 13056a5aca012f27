// The party on the map: its steps, what it treads on, and its figure.
#pragma once

namespace orvane {

struct Game;

// One step of the active direction, or the events of the tile on which the party stands.
void CharStep(Game& game, int counter);

// After a step: events of the tile just left, edges of the map, the figure.
void AfterStep(Game& game, int counter);

// Draws the walking figure; the counter picks one of its three frames, 0 the standing one.
void DrawHero(Game& game, int counter);

}  // namespace orvane
