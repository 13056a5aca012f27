// The way into a battle.
#pragma once

namespace orvane {

struct Game;

// Before each step: one in 150 leads into a battle, and so do the places where the dragons stand.
void EncounterCheck(Game& game);

// Leaves the field for the battle screen.
void EnterBattle(Game& game);

// Closes the field's music, opens the music of the fight and the effects.
void LoadBattleSounds(Game& game);

}  // namespace orvane
