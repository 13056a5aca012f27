// The heroes on the scene.
#pragma once

namespace orvane {

class BattleScreen;

// Both at rest.
void DrawHeroes(BattleScreen& battle);

// The acting hero walks out and, from the frame `start` on, back again; `frame` is the action's
// frame counter.
void HeroStepOut(BattleScreen& battle, int frame);
void HeroStepBack(BattleScreen& battle, int frame, int start);

// The acting hero stands a step forward, the other at rest.
void HeroHolding(BattleScreen& battle);

// The struck hero is thrown back.
void HeroHurtPose(BattleScreen& battle);

// One standing or walking hero (0 or 1) with his left edge at x, on his own line; frame 0 stands.
void DrawHeroAt(BattleScreen& battle, int hero, int x, int frame = 0);

}  // namespace orvane
