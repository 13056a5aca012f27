// The three attacks of the enemy side, the end of its phase, and the end of the party.
#pragma once

namespace orvane {

class BattleScreen;

// One frame of the plain attack, of "獄　炎", of "デス･スプリート".
void EnemyAtaNormal(BattleScreen& battle);
void EnemyAtaFire(BattleScreen& battle);
void EnemyAtaDeath(BattleScreen& battle);

}  // namespace orvane
