// The numbers over enemies and heroes that tell what an action comes to: they hop, and end where
// they began.
#pragma once

namespace orvane {

class BattleScreen;

// Write a number: over an enemy's slot, from 1; over a hero, 0 or 1.
void WriteOverEnemy(BattleScreen& battle, int slot, int number);
void WriteOverHero(BattleScreen& battle, int hero, int number);

// Each shows the numbers of its action and moves them on; `step` runs from -8 to 10.
void HopFight(BattleScreen& battle, int step);
void HopTechnique(BattleScreen& battle, int step);
void HopSpell(BattleScreen& battle, int step);
void HopHealing(BattleScreen& battle, int step);
void HopItem(BattleScreen& battle, int step);
void HopEnemyAttack(BattleScreen& battle, int step);
void HopBreath(BattleScreen& battle, int step);

// Take them off again.
void HideEnemyNumber(BattleScreen& battle, int slot);
void HideHeroNumbers(BattleScreen& battle);

}  // namespace orvane
