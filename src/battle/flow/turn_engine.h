// The frame player: one tick of the battle's ActionTimer plays one frame of the running action.
#pragma once

namespace orvane {

class BattleScreen;
struct ActionRow;

// One tick of ActionTimer. Without an action it does nothing, and the counter stands.
void ActionTick(BattleScreen& battle);

// The frame of the running action that ActionState says.
void PlayActionFrame(BattleScreen& battle);

// The part of a frame that moves the action's numbers, and computes them when their frame has come.
void PlayNumbersFrame(BattleScreen& battle, const ActionRow& row);

// The close of a hero's action: asks the other hero, or lets the enemies act.
void EndHeroAction(BattleScreen& battle);

}  // namespace orvane
