// Random places on the scene.
#pragma once

#include "src/base/integer.h"

namespace orvane {

class BattleScreen;

struct ScenePoint {
  Int16 X;
  Int16 Y;
};

// A point of the box in which the two heroes stand.
ScenePoint PointOverHeroes(const BattleScreen& battle);

// A point over one of them, 0 or 1.
ScenePoint PointOverHero(const BattleScreen& battle, int hero);

}  // namespace orvane
