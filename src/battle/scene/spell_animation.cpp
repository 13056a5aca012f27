#include "src/battle/scene/spell_animation.h"

#include <cmath>

#include "src/battle/battle_screen.h"
#include "src/battle/rules/formation.h"
#include "src/battle/scene/battle_drawing.h"
#include "src/battle/scene/scatter.h"
#include "src/battle/skill_table.h"

namespace orvane {
namespace {

constexpr Colour kWhite = Rgb(255, 255, 255);
constexpr int kQuake = 50;  // twips
constexpr int kShake = 20;

// At the row of the target list, or at a big enemy, whatever row is selected.
void AimAtTarget(BattleScreen& battle) {
  State& state = battle.state;
  state.MagicBossX = kBigTargetX;
  state.MagicBossY = kBigTargetY;
  state.MagicX = SlotX(battle.ChosenTarget());
  state.MagicY = SlotY(battle.ChosenTarget());
  if (!IsBigFight(state)) return;
  state.MagicX = state.MagicBossX;
  state.MagicY = state.MagicBossY;
}

}  // namespace

// ファイヤーブレズ: one great flame.
void spells::FireBreath(BattleScreen& battle, int c) {
  AimAtTarget(battle);
  if (c == 6) battle.game.sound.Play(kFireSound);
  DrawEffect(battle, 4, 4, {battle.state.MagicX, battle.state.MagicY, 96, 96});
}

// 絶対零度: four crystals close in from the corners of a square, and hold.
void spells::AbsoluteZero(BattleScreen& battle, int c) {
  AimAtTarget(battle);
  if (c == 14) battle.game.sound.Play(kIceSound);
  const int d = c <= 12 ? c : 16;
  for (int k = 0; k < 4; ++k) {
    const int left = SignOf(k) * 4 * d + battle.state.MagicX + k % 2 * 120 - 60;
    const int top = SignOf(k / 2) * 4 * d + battle.state.MagicY + k / 2 * 120 - 60;
    DrawEffect(battle, 4, 5, {left, top, 48, 48});
  }
}

// リフレッシュ: sparkles over the heroes.
void spells::Refresh(BattleScreen& battle, int c) {
  if (c == 6) battle.game.sound.Play(kHealingSound);
  Randomize(battle.game);
  for (int i = 0; i < 6; ++i) {
    const ScenePoint at = PointOverHeroes(battle);
    DrawEffect(battle, 1, 0, {at.X, at.Y, 24, 24});
  }
}

// アースクエイク: the scene shakes from side to side.
void spells::Earthquake(BattleScreen& battle, int c) {
  if (c == 6) battle.game.sound.Play(kQuakeSound);
  ShakeLeftRight(battle, c, kQuake);
}

// 爆雷降臨: a single flash that stays.
void spells::Thunderbolt(BattleScreen& battle, int c) {
  if (c != 10) return;
  battle.game.sound.Play(kThunderSound);
  FillBox(battle.Scene.Picture, 0, 0, 480, 288, kWhite);
}

// サンプレゼンター: a sun that grows.
void spells::SunPresenter(BattleScreen& battle, int c) {
  battle.game.sound.Play(kFireSound);
  const int size = 16 * c + 48;
  DrawEffect(battle, 0, 3, {150 - 8 * c, 140 - 8 * c, size, size});
  ShakeUpDown(battle, c, kShake);
}

// ダークプレッシャー: a ring that sinks.
void spells::DarkPressure(BattleScreen& battle, int c) {
  battle.game.sound.Play(kBlastSound);
  DrawCircle(battle.Scene.Picture, 300 - 2 * c, 10 * c - 150, 250, kWhite);
  ShakeUpDown(battle, c, kShake);
}

// 風の癒し: pairs of sparkles over the heroes.
void spells::HealingWind(BattleScreen& battle, int c) {
  if (c == 6) battle.game.sound.Play(kHealingSound);
  Randomize(battle.game);
  for (int i = 0; i < 6; ++i) {
    const ScenePoint first = PointOverHeroes(battle);
    const ScenePoint second = PointOverHeroes(battle);
    DrawEffect(battle, 1, 0, {first.X, first.Y, 24, 24});
    DrawEffect(battle, 1, 4, {second.X, second.Y, 24, 24});
  }
}

// アトミックボム: a widening ring; its angles are radians taken as they come, so that it looks
// scattered.
void spells::AtomicBomb(BattleScreen& battle, int c) {
  if (c == 6) battle.game.sound.Play(kAtomicSound);
  for (int k = 0; k <= 10; ++k) {
    const int angle = 20 * k + c;
    const Int16 left = RoundToInt16(std::cos(angle) * 6 * c + 150);
    const Int16 top = RoundToInt16(std::sin(angle) * 4 * c + 140);
    DrawEffect(battle, 0, c % 4, {left, top, 64, 64});
  }
}

// ジオ･スプリート: a widening band of light full of suns.
void spells::GeoSplit(BattleScreen& battle, int c) {
  battle.game.sound.Play(kAtomicSound);
  ShakeUpDown(battle, c, kShake);
  FillBox(battle.Scene.Picture, 0, 146 - 4 * c, 432, 146 + 4 * c, Rgb(255, 255, 10 * c));
  Randomize(battle.game);
  for (int k = 0; k <= 10; ++k) {
    const Int16 x = Roll(battle.game, 350);
    const Int16 y = Roll(battle.game, 230, 50);
    const Int16 size = Roll(battle.game, 48, 24);
    DrawEffect(battle, 0, 3, {x, y, size, size});
  }
}

void PlaySpellFrame(BattleScreen& battle, int frame) {
  const int row = battle.ChosenSkill();
  battle.HeroActionPanel.Visible = true;
  battle.HeroActionName.Caption = battle.state.MagicName[row - 1];
  if (const Skill* spell = FindSpell(row)) spell->Play(battle, frame);
  battle.Scene.Picture.Refresh();
}

}  // namespace orvane
