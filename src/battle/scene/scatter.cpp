#include "src/battle/scene/scatter.h"

#include "src/battle/battle_screen.h"

namespace orvane {
namespace {

constexpr int kLeft = 355;
constexpr int kWidth = 58;
constexpr int kTop = 130;
constexpr int kHeroHeight = 54;

ScenePoint PointInBox(const BattleScreen& battle, int top, int height) {
  const Int16 x = Roll(battle.game, kWidth, kLeft);
  const Int16 y = Roll(battle.game, height, top);
  return {x, y};
}

}  // namespace

ScenePoint PointOverHeroes(const BattleScreen& battle) {
  return PointInBox(battle, kTop, 2 * kHeroHeight);
}

ScenePoint PointOverHero(const BattleScreen& battle, int hero) {
  return PointInBox(battle, hero * kHeroHeight + kTop, kHeroHeight);
}

}  // namespace orvane
