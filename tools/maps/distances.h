// How far the goals of a round lie from one another.
#pragma once

#include <string>
#include <vector>

#include "tools/maps/explore.h"

namespace orvane::maps {

struct Goal {
  std::string Name;
  std::vector<int32_t> Stands;  // the places of an exploration that reach it
};

// The start, the chests, the book chests, the recovery points and the dragon, in that order.
std::vector<Goal> GoalsOf(const World& world, const Exploration& exploration);

// Steps from each goal (row) to each goal (column), -1 where there is no way.
std::vector<std::vector<int32_t>> StepsBetween(const Exploration& exploration,
                                               const std::vector<Goal>& goals);

// Steps of a walk from the start to all chests and book chests, always to the nearest one left, and
// from the last one to the dragon; -1 when one of them cannot be reached.
int32_t StepsOfATour(const std::vector<Goal>& goals,
                     const std::vector<std::vector<int32_t>>& steps_between);

// A table for reading: for every goal the steps from the start, the nearest recovery point, and the
// steps to each other goal. A step is 4 pixels; a fight comes once in 150 steps.
std::string DistanceTable(const World& world, const Exploration& exploration);

}  // namespace orvane::maps
