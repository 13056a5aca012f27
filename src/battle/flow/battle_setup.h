// How a battle opens, sounds and is abandoned.
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

// The player has closed the window: the battle ends without a result.
void AbandonBattle(BattleScreen& battle);

// Writes a hero's name into the caption of his tab.
void NameTab(BattleScreen& battle, int hero);

}  // namespace orvane
