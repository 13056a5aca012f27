// What a won battle gives.
#pragma once

#include "src/core/state.h"

namespace orvane {

bool EnemyLeft(const State& state);

// The experience that each standing hero gains.
Int32 ExperienceOf(const State& state);

// The skill that a hero's book trains grows by what the fight is worth. True if it is mastered
// then; the man's table of masteries counts for both.
bool TrainByBook(State& state, int hero);

// A fainted hero comes back with a single HP.
void StandUp(State& state, int hero);

}  // namespace orvane
