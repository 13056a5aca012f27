// Where enemies stand, and which enemy a fight is about.
#pragma once

#include "src/core/state.h"
#include "src/platform/services.h"

namespace orvane {

// Rows of the enemy table.
constexpr int kLastBossKind = 18;
constexpr int kBoneDragonKind = 13;

constexpr int kBigSlot = 5;  // of the single big enemy

// Where a skill's picture is drawn on a big enemy, in pixels of the scene.
constexpr int kBigTargetX = 120;
constexpr int kBigTargetY = 140;

// A fight against a single big enemy: a round's dragon, the last one, or a bone dragon.
bool IsBigFight(const State& state);

// The row of the enemy table that this fight is about.
int EnemyRow(const State& state);

// Rolls the group that a battle opens with: its kind in the first three rounds, its number in any,
// and fills its slots. A big enemy stands alone in its own.
void FormEnemies(State& state, Chance& luck);

// What the enemy side does now that both heroes have acted: whether a dragon's special is rolled,
// and how often it acts. Enemies that a won battle has left turns to carry them into the next.
void DecideEnemyPhase(State& state, Chance& luck);

// The top left corner of a slot, 1 to 4, on the scene.
int SlotX(int slot);
int SlotY(int slot);

}  // namespace orvane
