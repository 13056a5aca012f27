// The frame player: one tick of the battle's ActionTimer plays one frame of the running action.
#pragma once

namespace orvane {

class BattleScreen;

// One tick of ActionTimer.
void ActionTick(BattleScreen& battle);

// One frame of a fight.
void FightRun(BattleScreen& battle);

// The close of a technique, a spell or an item: asks the other hero, or lets the enemies act.
void HeroActionEnd(BattleScreen& battle);

}  // namespace orvane
