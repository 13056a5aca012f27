// What the parts of an action's arithmetic share.
#pragma once

#include <string>

#include "src/battle/battle_screen.h"
#include "src/battle/rules/formation.h"

namespace orvane {

constexpr int LastOneTargetSpell = 3;  // spells beyond this row strike all

// The slot of the target, from 1.
inline int TargetSlot(BattleScreen& battle) {
  return IsBigFight(battle.state) ? BigSlot : battle.Targets.ListIndex;
}

// The frame at which the numbers of an action appear and its result is computed.
int ComputingFrame(int kind);

}  // namespace orvane
