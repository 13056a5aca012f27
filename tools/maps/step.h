// One step of the game on the maps of a world, without its chance encounters.
#pragma once

#include "src/field/step.h"
#include "tools/maps/world.h"

namespace orvane::maps {

enum class Event { Blocked, Walked, Dragon, NoSuchMap };

struct Outcome {
  Event event = Event::Blocked;
  Party party;  // where the party stands then; for NoSuchMap, where the game has moved it to
};

// What a round begins with: 1 the first, 2 and 3 the next ones, 4 the last stage.
Party StartOf(int round);
WalkRules RulesOf(int round, bool nine_techniques);

// The tile code under the party.
int TileUnder(const World& world, const Party& party);

// True where the next step meets the dragon: the strip on map 4,1, or on the last stage.
bool AtDragon(const WalkRules& rules, const Party& party);

// Tries one step.
Outcome Step(const World& world, const WalkRules& rules, const Party& party, Direction direction);

}  // namespace orvane::maps
