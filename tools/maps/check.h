// What must hold for every map, proved by walking.
#pragma once

#include <string>
#include <vector>

#include "tools/maps/explore.h"
#include "tools/maps/world.h"

namespace orvane::maps {

enum class FaultKind {
  BadCode,         // code 0 or above 240 on a map
  Border,          // neighbouring maps do not match along their border
  OpenBorder,      // the outer border of the grid, a room, the hidden map or the last stage is open
  Furniture,       // a chest, book chest or door is missing, too many, or stands on a wrong map
  Unreachable,     // something that should be reached cannot be
  DeadEnd,         // the party comes to stand on a tile that it cannot leave
  Trap,            // there is no way back to the start
  FlipFlop,        // a step up or down turns the map to the left or right
  NoSuchMap,       // a step leads to a map that does not exist
  WrongExit,       // the party leaves a room or the last stage other than by its way out
  FarFromRecovery  // more than two maps to the next recovery point
};

// A kind's name as the checker prints it.
const char* KindName(FaultKind kind);

struct Fault {
  FaultKind Kind;
  std::string What;
};

// The rules that can be read off the maps: codes, borders, furniture.
std::vector<Fault> CheckDrawing(const World& world);

// The rules of one journey: goals, traps, flip-flops, exits, recovery.
std::vector<Fault> CheckJourney(const World& world, const Exploration& exploration);

// Everything: the drawing and all journeys.
std::vector<Fault> CheckWorld(const World& world);

}  // namespace orvane::maps
