// The walk's rules by themselves: where one step takes the party. They know no screen and no file,
// so that whoever draws maps can have every step of the game tried on them.
#pragma once

#include <optional>

#include "src/base/direction.h"
#include "src/core/map.h"

namespace orvane {

// Where the party stands.
struct Party {
  int MapA = 0;  // the map of the grid, in a room the one that its door stands on
  int MapB = 0;
  int X = 0;  // the feet, in pixels
  int Y = 0;
  // The room that the tiles around are of. It and the game's own mark of being in a room part only
  // when a room that is not walled lets the party out over a wrong edge.
  Room Inside{};
  bool InBook = false;
  int ReturnX = 0;  // in a room: where the party stands again when it leaves
  int ReturnY = 0;
  bool operator==(const Party&) const = default;

  // The map whose tiles are around.
  MapId Map() const { return Inside == kNoRoom ? MapId{MapA, MapB} : MapId{0, 0, Inside}; }
};

// What a step depends on besides the party's place.
struct WalkRules {
  int Round = 1;
  bool NineTechniques = false;  // those of the first nine books are all known
  bool LastStage = false;
};

// The tile codes under the party and beside it.
struct Surroundings {
  int Here, Up, Down, Left, Right;
};

// A step of 4 pixels.
struct StepTaken {
  bool Free = false;         // false: the party stays where it is
  bool ThroughDoor = false;  // into the room Before.Inside
  Party Before;              // the place from which the step is made, in the room behind a door
  Party After;               // the place to which it leads, on the same map
};

// Where the game begins, where its later rounds do, and where the last stage does.
constexpr Party kGameStart{3, 3, 192, 96};
constexpr Party kRoundStart{3, 3, 208, 112};
constexpr Party kLastStageStart{0, 0, 232, 224};

// Looks around on a map. Throws RunError(Subscript) where one of the cells is not on it.
Surroundings LookAround(const MapTiles& tiles, int x, int y);

// Tries one step. A door is gone through upward only. What happens on the way comes between this
// and CrossEdge: a fight is met at Before, and the tile just left gives what it holds, which can
// change the rules.
StepTaken TryStep(const Surroundings& around, const WalkRules& rules, const Party& party,
                  Direction direction);

// After a step: where the party stands on the neighbouring map, or on the way out of a room, when
// it has come to an edge of the screen.
std::optional<Party> CrossEdge(const WalkRules& rules, const Party& party);

// The maps on which doors lead to the spring room; on all others they lead to the round's book
// room.
constexpr MapId kSpringMaps[] = {{1, 1}, {3, 5}};

// The strips before which the dragons wait: that of the rounds, and the last one.
bool BeforeDragon(const Party& party);
bool BeforeLastDragon(const Party& party);

}  // namespace orvane
