// The ten techniques as pictures: each draws one frame of its animation, the hero himself often
// several times over, and starts its sounds.
#pragma once

namespace orvane {

class BattleScreen;

// Finds the target point of the technique by the row of the target list.
void WazaTarget(BattleScreen& battle);

// One frame of technique `waza`, 1 to 10, at the even frame number `frame`, 6 to 24.
void WazaPlay(BattleScreen& battle, int frame, int waza);

}  // namespace orvane
