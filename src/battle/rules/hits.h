// The arithmetic of an action at its one computing frame, the hop of the numbers, and what results
// do.
#pragma once

namespace orvane {

class BattleScreen;

// Moves the number labels of the running action and computes its result when its frame has come.
void DamageDisplay(BattleScreen& battle);

// Computes the result of the running action, if this is its frame.
void DamageCalc(BattleScreen& battle);

// Takes a result off the enemies, and off the heroes.
void HitEnemies(BattleScreen& battle);
void HitHeroes(BattleScreen& battle);

// Takes an enemy without life from its slot, from 1, and off the scene.
void EnemyKillCheck(BattleScreen& battle, int slot);

}  // namespace orvane
