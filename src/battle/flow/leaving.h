// What both ways out of a battle share.
#pragma once

namespace orvane {

class BattleScreen;

// Clears the direction that drives the hero, and closes the music of the fight.
void LetGoAndSilence(BattleScreen& battle);

// Flight, both panes and both heroes are free for the next battle.
void FreeCommands(BattleScreen& battle);

}  // namespace orvane
