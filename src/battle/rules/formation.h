// Where enemies stand, and which enemy a fight is about.
#pragma once

#include "src/core/state.h"
#include "src/ui/surface.h"

namespace orvane {

constexpr int LastBossKind = 18;
constexpr int BoneDragonKind = 13;
constexpr int BigSlot = 5;  // of the single big enemy

// A fight against a single big enemy: a round's dragon, the last one, or a bone dragon.
bool IsBigFight(const State& state);

// The row of the enemy table that this fight is about.
int EnemyRow(const State& state);

// The top left corner of a slot, 1 to 4, on the scene.
int SlotX(int slot);
int SlotY(int slot);

// The cells of the ground beneath a slot, in the grid that RedrawCells counts in.
Rect SlotCells(int slot);

}  // namespace orvane
