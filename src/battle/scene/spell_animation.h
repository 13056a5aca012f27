// The ten spells as pictures: each draws one frame of its animation and starts its sound.
#pragma once

namespace orvane {

class BattleScreen;

// Finds the target point of the spell by the row of the target list.
void MagicTarget(BattleScreen& battle);

// One frame of spell `spell`, 1 to 10, at the even frame number `frame`, 6 to 24.
void MagicPlay(BattleScreen& battle, int frame, int spell);

}  // namespace orvane
