// Every place that the party can get to, found by trying every step from every place.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

#include "tools/maps/step.h"

namespace orvane::maps {

// A start and what the party can do: the world as one round shows it.
struct Journey {
  std::string Name;
  WalkRules Rules;
  Party Start;
};

// The journeys that together cover the game: the three rounds, the third with nine techniques
// known, and the last stage.
std::vector<Journey> AllJourneys();

constexpr int32_t kNoWay = -1;      // the step is blocked
constexpr int32_t kToDragon = -2;   // the step meets the dragon: nothing leads on from there
constexpr int32_t kToNowhere = -3;  // the step asks for a map that does not exist

// A place with the places that its four steps lead to, in the order of kDirections; `loaded` is
// where a game saved here goes on (kNoWay where saving is not possible or changes nothing).
struct Stand {
  Party party;
  std::array<int32_t, 4> Next{kNoWay, kNoWay, kNoWay, kNoWay};
  int32_t loaded = kNoWay;
};

struct Exploration {
  Journey journey;
  std::vector<Stand> Stands;                      // the start is the first
  std::unordered_map<uint64_t, int32_t> Numbers;  // a place's number in `stands`, by its key

  // The number of a place, or kNoWay when the party cannot get there.
  int32_t Find(const Party& party) const;
};

// Explores until nothing new is found. The menu of the last book's room can save, and the saved
// game goes on at the room's coordinates on the map outside; that way is explored too.
Exploration Explore(const World& world, const Journey& journey);

// Steps from a place to every place, -1 where there is no way; the dragon bars the way.
std::vector<int32_t> StepsFrom(const Exploration& exploration, int32_t from);

// For every place, true when the cell of the start can be reached from it. The cell and not the
// pixel: a game loaded from the last book's room walks on other multiples of 4 than the one begun.
std::vector<bool> CanReturn(const Exploration& exploration);

}  // namespace orvane::maps
