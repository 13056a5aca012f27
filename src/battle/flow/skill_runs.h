// Techniques, spells and items from their first frame to the last.
#pragma once

namespace orvane {

class BattleScreen;

// One frame each, by the value of ActionState.
void WazaRun(BattleScreen& battle);
void MagicRun(BattleScreen& battle);
void HealRun(BattleScreen& battle);
void ItemRun(BattleScreen& battle);

}  // namespace orvane
