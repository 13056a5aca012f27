// How a battle opens, sounds, is left and is abandoned.
#pragma once

namespace orvane {

class BattleScreen;

// The screen has come into being.
void LoadBattle(BattleScreen& battle);

// A battle is entered.
void OpenBattle(BattleScreen& battle);

// Forms the enemy group and draws the opening scene.
void BattleSetUp(BattleScreen& battle);

// One tick of MusicTimer: keeps the music of the fight going.
void BattleMusic(BattleScreen& battle);

// The way out of a battle that was won or fled from: its music ends, flight and both heroes are
// free for the next one, and Main is shown.
void LeaveBattle(BattleScreen& battle);

// The player has closed the window: the battle ends without a result.
void AbandonBattle(BattleScreen& battle);

}  // namespace orvane
