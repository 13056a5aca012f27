// The three attacks of the enemy side, and the end of the party.
#pragma once

namespace orvane {

class BattleScreen;
struct ActionRow;

// One frame of the plain attack, of "獄　炎", of "デス･スプリート". The last closes the attack: the
// next one follows, the heroes are asked again, or the game is over.
void PlayEnemyAttack(BattleScreen& battle, const ActionRow& row);
void PlayHellFire(BattleScreen& battle, const ActionRow& row);
void PlayDeathSplit(BattleScreen& battle, const ActionRow& row);

}  // namespace orvane
