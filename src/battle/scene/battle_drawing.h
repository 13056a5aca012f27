// What all actions of a battle draw with. Everything goes straight onto the scene; nothing is
// erased but by drawing the ground over it again.
#pragma once

#include "src/ui/surface.h"

namespace orvane {

class BattleScreen;

// A sprite's source: image and mask of the same size on one sheet.
struct Cell {
  int MaskX, MaskY;
  int ImageX, ImageY;
  int Width, Height;
};

// Puts a sprite on the scene: the mask by OR, then the image by AND, both scaled to the target.
void DrawSprite(BattleScreen& battle, const Rect& target, const Surface& sheet, const Cell& cell);

// An effect cell, by its column and row on the effect sheet.
void DrawEffect(BattleScreen& battle, int column, int row, const Rect& target);

// Draws cells of the ground over the scene; one is 36 by 33 pixels, of 12 across and 8 down.
void RedrawCells(BattleScreen& battle, const Rect& cells);

// The cells beneath a slot, from 1.
Rect SlotCells(int slot);

// Draws the whole ground.
void DrawBackground(BattleScreen& battle);

// Draws the dragon of the round, the last one, or whatever enemy side this fight has.
void DrawRoundBoss(BattleScreen& battle);
void DrawLastBoss(BattleScreen& battle);
void DrawEnemySide(BattleScreen& battle);

// One enemy of the ordinary group in its slot, `shift` pixels to the right.
void DrawEnemyInSlot(BattleScreen& battle, int slot, int shift = 0);

// Draws the target of a plain attack thrown back by 10 pixels.
void EnemyRecoil(BattleScreen& battle);

// Lets the targets of a spell light up as white shapes.
void EnemyFlash(BattleScreen& battle);

// Move the scene by so many twips, the other way on every frame, so that an even number of frames
// ends where it began.
void ShakeUpDown(BattleScreen& battle, int frame, int twips);
void ShakeLeftRight(BattleScreen& battle, int frame, int twips);

// (-1) to the power n.
constexpr int SignOf(int n) {
  return n % 2 == 0 ? 1 : -1;
}

}  // namespace orvane
