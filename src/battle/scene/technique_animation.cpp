#include "src/battle/scene/technique_animation.h"

#include <cmath>

#include "src/battle/battle_screen.h"
#include "src/battle/rules/formation.h"
#include "src/battle/scene/battle_drawing.h"
#include "src/battle/skill_table.h"

namespace orvane {
namespace {

// The hero's two poses, facing the enemies and facing away, and his place at rest.
constexpr Cell kPoseA{72, 96, 0, 96, 24, 32};
constexpr Cell kPoseB{72, 32, 0, 32, 24, 32};
constexpr int kPoseWidth = 40;
constexpr int kPoseHeight = 56;
constexpr int kHomeX = 355;
constexpr int kHomeY = 140;

constexpr int kHoldTime = 100;  // ms

void Pose(BattleScreen& battle, int x, int y, const Cell& pose = kPoseA) {
  DrawSprite(battle, {x, y, kPoseWidth, kPoseHeight}, battle.ManSheet.Picture, pose);
}

void PoseAtHome(BattleScreen& battle) {
  Pose(battle, kHomeX, kHomeY);
}

// At the row of the target list.
void Aim(BattleScreen& battle) {
  State& state = battle.state;
  state.WazaBossX = kBigTargetX;
  state.WazaBossY = kBigTargetY;
  state.WazaX = SlotX(battle.ChosenTarget());
  state.WazaY = SlotY(battle.ChosenTarget());
}

// A big enemy is struck at its own point, whatever row is selected.
void AimAtBig(BattleScreen& battle) {
  State& state = battle.state;
  if (!IsBigFight(state)) return;
  state.WazaX = state.WazaBossX;
  state.WazaY = state.WazaBossY;
}

void Play(const BattleScreen& battle, const char* channel) {
  battle.game.sound.Play(channel);
}

void DrawSlash(BattleScreen& battle) {
  DrawEffect(battle, 6, 1, {battle.state.WazaX + 20, battle.state.WazaY + 20, 48, 48});
}

// Two sprites that cross over the target.
void CrossingPair(BattleScreen& battle, int c, int row) {
  const State& state = battle.state;
  PoseAtHome(battle);
  AimAtBig(battle);
  DrawEffect(battle, 4, row, {state.WazaX + 70 - 3 * c, state.WazaY - 30 + 3 * c, 24, 24});
  DrawEffect(battle, 4, row, {state.WazaX - 25 + 3 * c, state.WazaY - 30 + 3 * c, 24, 24});
}

}  // namespace

// 炎舞剣
void techniques::FlameDance(BattleScreen& battle, int c) {
  if (c == 6) Play(battle, kFireSound);
  CrossingPair(battle, c, 4);
}

// 氷岩断絶剣
void techniques::IceCleaver(BattleScreen& battle, int c) {
  if (c == 6) Play(battle, kIceSound);
  CrossingPair(battle, c, 5);
}

// パワーブレイク: power gathers, then four shards fly off.
void techniques::PowerBreak(BattleScreen& battle, int c) {
  AimAtBig(battle);
  const State& state = battle.state;
  if (c <= 13) Play(battle, kBlastSound);
  PoseAtHome(battle);
  if (c <= 13) return DrawEffect(battle, (c - 5) % 8, 4, {state.WazaX, state.WazaY, 64, 64});
  for (int b = 1; b <= 4; ++b) {
    const int left = SignOf(b) * c * 2 + state.WazaX + 10;
    const int top = state.WazaY - SignOf(b / 3) * c * 2 + 10;
    DrawEffect(battle, 1, 4, {left, top, 36, 36});
  }
}

// 大地の剣: rock rises, then ice. The first sound is cut short by closing its channel.
void techniques::EarthSword(BattleScreen& battle, int c) {
  AimAtBig(battle);
  const State& state = battle.state;
  if (c < 16) Play(battle, kBlastSound);
  if (c == 16) {
    battle.game.sound.Close(kBlastSound);
    Play(battle, kIceSound);
  }
  if (c == 24) battle.game.sound.Open(kBlastSound);
  PoseAtHome(battle);
  if (c < 16) {
    DrawEffect(battle, 2, 0, {state.WazaX - 20, state.WazaY + 20 - (c - 6) * 10, 64, 64});
  } else {
    DrawEffect(battle, 3, 0, {state.WazaX + 20, state.WazaY + 20 - (c - 16) * 10, 64, 64});
  }
}

namespace {

// One of the four poses that every frame of the fall shows, after the hold at its beginning.
void Fall(BattleScreen& battle, int c, int j) {
  if (c == 14) battle.game.stage.Hold(kHoldTime);
  if (c == 22) {
    AimAtBig(battle);
    Play(battle, kCutSound);
    DrawSlash(battle);
  }
  Pose(battle, kHomeX - (j + c - 12) * 30, (j + c - 12) * 10 + 35);
}

}  // namespace

// 召雷斬: a leap straight up, a hold, a fall across the field.
void techniques::ThunderCall(BattleScreen& battle, int c) {
  for (int j = 0; j <= 3; ++j) {
    if (c <= 12) {
      Pose(battle, kHomeX, kHomeY - (j + c - 5) * 15);
    } else if (c <= 22) {
      Fall(battle, c, j);
    } else {
      Pose(battle, kHomeX + c - j, 2 * c + 30 - j);
    }
  }
}

// 一刀両断: a run with three afterimages.
void techniques::SingleStroke(BattleScreen& battle, int c) {
  AimAtBig(battle);
  if (c == 20) Play(battle, kCutSound);
  if (c < 15) return PoseAtHome(battle);
  for (int s = 0; s <= 3; ++s) Pose(battle, kHomeX - (c - s) * 20, kHomeY);
  if (c > 20) DrawSlash(battle);
}

// ダークスラッシュ: a black band that widens.
void techniques::DarkSlash(BattleScreen& battle, int c) {
  AimAtBig(battle);
  if (c == 20 || c == 22) Play(battle, kCutSound);
  FillBox(battle.Scene.Picture, 0, 146 - 4 * c, 432, 146 + 4 * c, Rgb(0, 0, 0));
  if (c >= 20) DrawSlash(battle);
}

// 円陣斬: a ring of afterimages; its angles are radians taken as they come, so that it jumps about.
void techniques::CircleCut(BattleScreen& battle, int c) {
  AimAtBig(battle);
  const State& state = battle.state;
  Play(battle, kCutSound);
  const Int16 flame_x = RoundToInt16(std::cos(c) * 10 + static_cast<double>(state.WazaX + 20));
  const Int16 flame_y = RoundToInt16(std::sin(c) * 5 + static_cast<double>(state.WazaY + 20));
  DrawEffect(battle, 4, 4, {flame_x, flame_y, 48, 48});
  for (int a = 0; a <= 360; a += 30) {
    const Int16 left = RoundToInt16(std::cos(a * c) * 50 + 10 + static_cast<double>(state.WazaX));
    const Int16 top = RoundToInt16(std::sin(a * c) * 50 + static_cast<double>(state.WazaY));
    DrawSprite(battle, {left, top, 48, 64}, battle.ManSheet.Picture, kPoseA);
  }
}

// 必殺撃: thrusts from right beside the enemy.
void techniques::DeadlyBlow(BattleScreen& battle, int c) {
  if (c < 16) return PoseAtHome(battle);
  const State& state = battle.state;
  Play(battle, kBlastSound);
  EnemyRecoil(battle);
  AimAtBig(battle);
  for (int s = 0; s <= 5; ++s) {
    const int left = state.WazaX + 50 - s * c - 16;
    const int top = SignOf(s) * c + state.WazaY + 20 - 16;
    DrawEffect(battle, 4, 1, {left, top, 48, 48});
  }
  Pose(battle, state.WazaX + 64, state.WazaY);
}

namespace {

// Four heroes close on the middle of the scene from its corners.
void CloseIn(BattleScreen& battle, int c) {
  if (c == 6) Play(battle, kIceSound);
  if (c == 8) FillBox(battle.Scene.Picture, 0, 0, 480, 288, Rgb(255, 255, 255));
  for (int d = 0; d <= 1; ++d) {
    const int y = SignOf(d) * (c - 5) * 11 + 210 * d;
    Pose(battle, 390 - (c - 5) * 20, y);
    Pose(battle, (c - 5) * 20, y, kPoseB);
  }
}

}  // namespace

// 奥義･真魔神斬: then an explosion grows around the target. The first sound is cut short by closing
// its channel.
void techniques::DemonGod(BattleScreen& battle, int c) {
  AimAtBig(battle);
  if (c <= 15) return CloseIn(battle, c);
  if (c == 16) {
    battle.game.sound.Close(kIceSound);
    Play(battle, kAtomicSound);
  }
  const int size = (c - 16) * 30 + 48;
  DrawEffect(battle, 1, 3,
             {battle.state.WazaX + 32 - (c - 16) * 15, battle.state.WazaY + 16 - (c - 16) * 15,
              size, size});
  if (c == 24) battle.game.sound.Open(kIceSound);
}

void PlayTechniqueFrame(BattleScreen& battle, int frame) {
  const int row = battle.ChosenSkill();
  battle.HeroActionPanel.Visible = true;
  battle.HeroActionName.Caption = battle.state.WazaName[row - 1];
  if (const Skill* technique = FindTechnique(row)) {
    Aim(battle);
    technique->Play(battle, frame);
  }
  battle.Scene.Picture.Refresh();
}

}  // namespace orvane
