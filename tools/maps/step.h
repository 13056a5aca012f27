// One step of the walking party, as a pure function: what the game does on a tick with one
// direction on, without its chance encounters.
#pragma once

#include <string>

#include "tools/maps/world.h"

namespace orvane::maps {

enum class Direction { Up, Down, Left, Right };

constexpr Direction kDirections[] = {Direction::Up, Direction::Down, Direction::Left,
                                     Direction::Right};

// What a step depends on besides the party's own place.
struct StepRules {
  int round = 1;                 // 1 to 3, or 4 in the last stage
  bool nine_techniques = false;  // the techniques of the first nine books are all known
};

// Where the party stands. `room` names the tiles in memory; `in_book` is the game's own mark of
// being in a room. They part only when a room lets the party out over a wrong edge.
struct Party {
  int map_a = 3;
  int map_b = 3;
  int x = 192;  // the feet, in pixels
  int y = 96;
  Room room = Room::None;
  bool in_book = false;
  int return_x = 0;  // where the party stands again on leaving the room
  int return_y = 0;
  bool operator==(const Party&) const = default;

  Place Ground() const { return room == Room::None ? Place{map_a, map_b} : Place{0, 0, room}; }
};

enum class Event { Blocked, Walked, Dragon, NoSuchMap };

struct Outcome {
  Event event = Event::Blocked;
  Party party;  // where the party stands then; for NoSuchMap, where the game has moved it to
};

// Where a new round begins: 1 the first, 2 and 3 the next ones, 4 the last stage.
Party StartOf(int round);

// The tile code under the party.
int TileUnder(const World& world, const Party& party);

// True where the next step meets the dragon: the strip on map 4,1, or on the last stage.
bool AtDragon(const StepRules& rules, const Party& party);

// Tries one step of 4 pixels.
Outcome Step(const World& world, const StepRules& rules, const Party& party, Direction direction);

}  // namespace orvane::maps
