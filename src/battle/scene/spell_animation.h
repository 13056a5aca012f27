// The ten spells as pictures: each draws one frame of its animation and starts its sound.
#pragma once

namespace orvane {

class BattleScreen;

namespace spells {
void FireBreath(BattleScreen& battle, int frame);
void AbsoluteZero(BattleScreen& battle, int frame);
void Refresh(BattleScreen& battle, int frame);
void Earthquake(BattleScreen& battle, int frame);
void Thunderbolt(BattleScreen& battle, int frame);
void SunPresenter(BattleScreen& battle, int frame);
void DarkPressure(BattleScreen& battle, int frame);
void HealingWind(BattleScreen& battle, int frame);
void AtomicBomb(BattleScreen& battle, int frame);
void GeoSplit(BattleScreen& battle, int frame);
}  // namespace spells

// One frame of the chosen spell at the even frame number `frame`, 6 to 24, under its name.
void PlaySpellFrame(BattleScreen& battle, int frame);

}  // namespace orvane
