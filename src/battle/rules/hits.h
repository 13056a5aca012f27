// What results do at the end of an action.
#pragma once

#include <vector>

#include "src/battle/rules/choice.h"
#include "src/core/state.h"

namespace orvane {

// Each takes its result off the enemies and gives the slots, from 1, that are without life now. An
// all-striking spell counts those that had none before.
std::vector<int> HitByFight(State& state, const Choice& choice);
std::vector<int> HitByTechnique(State& state, const Choice& choice);
std::vector<int> HitBySpell(State& state, const Choice& choice);

// Each takes its result off the heroes, holds their numbers to their bounds, and gives those whom
// it leaves without HP: they have fainted.
std::vector<int> HitByEnemy(State& state);
std::vector<int> HitByBreath(State& state);

}  // namespace orvane
