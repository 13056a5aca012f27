// The way into a battle.
#pragma once

namespace orvane {

struct Game;

// Before each step: one in 150 leads into a battle, and so do the places where the dragons stand.
// The battle's screen stands in front when this returns, and Main is hidden; the step that asked
// goes on.
void EncounterCheck(Game& game);

}  // namespace orvane
