#include "src/battle/scene/hero_poses.h"

#include "src/battle/battle_screen.h"
#include "src/battle/rules/action_results.h"
#include "src/battle/scene/battle_drawing.h"

namespace orvane {
namespace {

constexpr int kHomeX[] = {365, 385};
constexpr int kLineY[] = {140, 200};
constexpr int kWidth = 40;
constexpr int kHeight = 56;
constexpr int kShift = 10;  // forward while acting, backward when struck

// Cells of the heroes' sheets.
constexpr int kCellWidth = 24;
constexpr int kCellHeight = 32;
constexpr int kMasks = 72;
constexpr int kFacingRow = 96;

// The ground behind both heroes, and behind each of them.
constexpr Rect kBothCells{10, 4, 2, 4};
constexpr Rect kHeroCells[] = {{10, 4, 2, 2}, {10, 6, 2, 2}};

}  // namespace

void DrawHeroAt(BattleScreen& battle, int hero, int x, int frame) {
  const Surface& sheet = hero == 0 ? battle.ManSheet.Picture : battle.WomanSheet.Picture;
  const int column = frame % 3 * kCellWidth;
  const Rect target{x, kLineY[hero], kWidth, kHeight};
  const Cell cell{kMasks + column, kFacingRow, column, kFacingRow, kCellWidth, kCellHeight};
  DrawSprite(battle, target, sheet, cell);
}

void DrawHeroes(BattleScreen& battle) {
  RedrawCells(battle, kBothCells);
  DrawHeroAt(battle, 0, kHomeX[0]);
  DrawHeroAt(battle, 1, kHomeX[1]);
}

void HeroStepOut(BattleScreen& battle, int frame) {
  const int hero = battle.ActingHero();
  RedrawCells(battle, kHeroCells[hero]);
  DrawHeroAt(battle, hero, kHomeX[hero] - 2 * frame, frame);
}

void HeroHolding(BattleScreen& battle) {
  const int acting = battle.ActingHero();
  RedrawCells(battle, kHeroCells[acting]);
  for (int hero = 0; hero < 2; ++hero) {
    DrawHeroAt(battle, hero, kHomeX[hero] - (hero == acting ? kShift : 0));
  }
}

void HeroStepBack(BattleScreen& battle, int frame, int start) {
  const int hero = battle.ActingHero();
  RedrawCells(battle, kHeroCells[hero]);
  DrawHeroAt(battle, hero, (frame - start) * 2 + kHomeX[hero] - kShift, frame);
}

void HeroHurtPose(BattleScreen& battle) {
  const int hero = StruckHero(battle.state);
  RedrawCells(battle, kHeroCells[hero]);
  DrawHeroAt(battle, hero, kHomeX[hero] + kShift);
}

}  // namespace orvane
