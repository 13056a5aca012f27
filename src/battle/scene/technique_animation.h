// The ten techniques as pictures: each draws one frame of its animation, the hero himself often
// several times over, and starts its sounds.
#pragma once

namespace orvane {

class BattleScreen;

namespace techniques {
void FlameDance(BattleScreen& battle, int frame);
void IceCleaver(BattleScreen& battle, int frame);
void PowerBreak(BattleScreen& battle, int frame);
void EarthSword(BattleScreen& battle, int frame);
void ThunderCall(BattleScreen& battle, int frame);
void SingleStroke(BattleScreen& battle, int frame);
void DarkSlash(BattleScreen& battle, int frame);
void CircleCut(BattleScreen& battle, int frame);
void DeadlyBlow(BattleScreen& battle, int frame);
void DemonGod(BattleScreen& battle, int frame);
}  // namespace techniques

// One frame of the chosen technique at the even frame number `frame`, 6 to 24, under its name.
void PlayTechniqueFrame(BattleScreen& battle, int frame);

}  // namespace orvane
