// The end of a won battle: experience, proficiency, levels, and the panel that tells of them.
#pragma once

namespace orvane {

class BattleScreen;

// Ends the battle if no enemy is left.
void VictoryCheck(BattleScreen& battle);

// A click on the scene: leaves a won battle while its panel stands.
void LeaveVictory(BattleScreen& battle);

}  // namespace orvane
