#include "src/battle/scene/battle_drawing.h"

#include "src/battle/battle_screen.h"
#include "src/battle/rules/formation.h"
#include "src/battle/skill_table.h"
#include "src/core/map.h"

namespace orvane {
namespace {

constexpr int kSceneCellWidth = 36;
constexpr int kSceneCellHeight = 33;
constexpr int kSheetCellWidth = 40;
constexpr int kSheetCellHeight = 36;
constexpr Rect kScene{0, 0, 432, 264};
constexpr Rect kGroundSheet{0, 0, 480, 288};

constexpr Rect kBigPlace{75, 30, 160, 240};
constexpr Rect kBigCells{2, 1, 4, 7};
constexpr Cell kRoundBossCell{128, 0, 0, 0, 128, 192};
constexpr Cell kBigCell{160, 0, 0, 0, 160, 240};
constexpr Cell kEnemyCell{64, 0, 0, 0, 64, 64};
constexpr int kRecoil = 10;

constexpr int kEffectSize = 24;
constexpr int kEffectMasks = 192;

// The ground of the place where the party stands.
const Surface& Ground(const BattleScreen& battle) {
  const bool waste = IsWasteGround(battle.state.TileHere);
  return waste ? battle.WasteGround.Picture : battle.OpenGround.Picture;
}

// Draws a part of the ground; in the last dragon's lair that lies over everything else.
void DrawGround(BattleScreen& battle, const Rect& target, const Rect& area) {
  Surface& scene = battle.Scene.Picture;
  StretchBlt(scene, target, Ground(battle), area, Blit::Copy);
  if (battle.state.LastBossFight == kTrue) {
    StretchBlt(scene, target, battle.LairGround.Picture, area, Blit::Copy);
  }
}

// A rectangle of cells in pixels, by the size of one cell.
Rect InPixels(const Rect& cells, int width, int height) {
  return {width * cells.X, height * cells.Y, width * cells.Width, height * cells.Height};
}

const Cell& BigCellOf(const State& state) {
  return state.BossFight == kTrue ? kRoundBossCell : kBigCell;
}

void DrawBig(BattleScreen& battle, int row, const Cell& cell, int shift = 0) {
  RedrawCells(battle, kBigCells);
  Rect place = kBigPlace;
  place.X += shift;
  DrawSprite(battle, place, battle.EnemySheets[row].Picture, cell);
}

void DrawEnemyGroup(BattleScreen& battle) {
  RedrawCells(battle, SlotCells(battle.ChosenTarget()));
  for (int slot = 1; slot <= battle.state.EnemyCount; ++slot) {
    if (battle.state.EnemyAlive[slot - 1] == kTrue) DrawEnemyInSlot(battle, slot);
  }
}

double ShakePixels(int frame, int twips) {
  return SignOf(frame / 2) * twips / kTwipsPerPixel;
}

void FlashSlot(BattleScreen& battle, int slot) {
  const Surface& sheet = battle.EnemySheets[battle.state.EnemyKind].Picture;
  BitBlt(battle.Scene.Picture, SlotX(slot), SlotY(slot), kEnemyCell.Width, kEnemyCell.Height, sheet,
         kEnemyCell.MaskX, kEnemyCell.MaskY, Blit::Or);
}

}  // namespace

void DrawSprite(BattleScreen& battle, const Rect& target, const Surface& sheet, const Cell& cell) {
  Surface& scene = battle.Scene.Picture;
  StretchBlt(scene, target, sheet, {cell.MaskX, cell.MaskY, cell.Width, cell.Height}, Blit::Or);
  StretchBlt(scene, target, sheet, {cell.ImageX, cell.ImageY, cell.Width, cell.Height}, Blit::And);
}

void DrawEffect(BattleScreen& battle, int column, int row, const Rect& target) {
  const int x = column * kEffectSize;
  const int y = row * kEffectSize;
  DrawSprite(battle, target, battle.EffectSheet.Picture,
             {kEffectMasks + x, y, x, y, kEffectSize, kEffectSize});
}

void RedrawCells(BattleScreen& battle, const Rect& cells) {
  const Rect target = InPixels(cells, kSceneCellWidth, kSceneCellHeight);
  const Rect area = InPixels(cells, kSheetCellWidth, kSheetCellHeight);
  DrawGround(battle, target, area);
}

Rect SlotCells(int slot) {
  return {Quotient(slot, 3) * 3 + 1 - slot % 2, 5 - slot % 2 * 3, 3, 3};
}

void DrawBackground(BattleScreen& battle) {
  DrawGround(battle, kScene, kGroundSheet);
}

void DrawRoundBoss(BattleScreen& battle) {
  DrawBig(battle, battle.state.Round - 1, kRoundBossCell);
}

void DrawLastBoss(BattleScreen& battle) {
  DrawBig(battle, kLastBossKind, kBigCell);
}

void DrawEnemySide(BattleScreen& battle) {
  if (battle.state.BossFight == kTrue) {
    DrawRoundBoss(battle);
  } else if (battle.state.LastBossFight == kTrue) {
    DrawLastBoss(battle);
  } else if (battle.state.EnemyKind == kBoneDragonKind) {
    DrawBig(battle, kBoneDragonKind, kBigCell);
  } else {
    DrawEnemyGroup(battle);
  }
}

void DrawEnemyInSlot(BattleScreen& battle, int slot, int shift) {
  DrawSprite(battle, {SlotX(slot) + shift, SlotY(slot), kEnemyCell.Width, kEnemyCell.Height},
             battle.EnemySheets[battle.state.EnemyKind].Picture, kEnemyCell);
}

void EnemyRecoil(BattleScreen& battle) {
  if (IsBigFight(battle.state)) {
    return DrawBig(battle, EnemyRow(battle.state), BigCellOf(battle.state), -kRecoil);
  }
  const int slot = battle.ChosenTarget();
  if (battle.state.EnemyAlive[slot - 1] != kTrue) return;
  RedrawCells(battle, SlotCells(slot));
  DrawEnemyInSlot(battle, slot, -kRecoil);
}

void EnemyFlash(BattleScreen& battle) {
  if (IsBigFight(battle.state)) {
    const Cell& cell = BigCellOf(battle.state);
    StretchBlt(battle.Scene.Picture, kBigPlace, battle.EnemySheets[EnemyRow(battle.state)].Picture,
               {cell.MaskX, cell.MaskY, cell.Width, cell.Height}, Blit::Or);
  } else if (TargetsOfSpell(battle.ChosenSkill()) == Targets::One) {
    FlashSlot(battle, battle.ChosenTarget());
  } else {
    for (int slot = 1; slot <= battle.state.EnemyCount; ++slot) {
      if (battle.state.EnemyAlive[slot - 1] == kTrue) FlashSlot(battle, slot);
    }
  }
}

void ShakeUpDown(BattleScreen& battle, int frame, int twips) {
  battle.Scene.At.Top += ShakePixels(frame, twips);
}

void ShakeLeftRight(BattleScreen& battle, int frame, int twips) {
  battle.Scene.At.Left += ShakePixels(frame, twips);
}

}  // namespace orvane
