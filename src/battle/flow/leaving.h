// What both ways out of a battle share.
#pragma once

namespace orvane {

class BattleScreen;

// No direction drives the hero any more, and the music of the fight is closed.
void LetGoAndSilence(BattleScreen& battle);

// Flight, both panes and both heroes are free for the next battle.
void FreeCommands(BattleScreen& battle);

}  // namespace orvane
