// What each action comes to, by the state and what has been chosen. Damage waits in the state's
// field of its kind until the action's last frame (hits.h); healing and items act at once.
#pragma once

#include "src/battle/rules/battle_items.h"
#include "src/battle/rules/choice.h"
#include "src/core/state.h"
#include "src/platform/services.h"

namespace orvane {

void ComputeFight(State& state, const Choice& choice, Chance& luck);
void ComputeTechnique(State& state, const Choice& choice, Chance& luck);

// One slot's damage, or that of all of them.
void ComputeSpell(State& state, const Choice& choice, Chance& luck);

// Both heroes gain HP, and stand up.
void Heal(State& state, const Choice& choice);

// The item's receiver gains what it gives, beyond the maximum for now, and stands up. The item
// stays in the bag. Null if it is none that works in a battle.
const BattleItem* UseItem(State& state, const Choice& choice);

// The plain attack of the enemy that EnemyRoll has picked the hero for.
void ComputeEnemyAttack(State& state);

// The last dragon's special, and those of the rounds' dragons. The first round's has none and
// leaves what stands there.
void ComputeLastBreath(State& state, Chance& luck);
void ComputeBreath(State& state, Chance& luck);

// The hero whom EnemyRoll picks.
int StruckHero(const State& state);

}  // namespace orvane
