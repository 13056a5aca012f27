#include "src/battle/flow/skill_runs.h"

#include "src/battle/battle_screen.h"
#include "src/battle/flow/turn_engine.h"
#include "src/battle/flow/victory.h"
#include "src/battle/rules/formation.h"
#include "src/battle/rules/hits.h"
#include "src/battle/scene/battle_drawing.h"
#include "src/battle/scene/hero_poses.h"
#include "src/battle/scene/scatter.h"
#include "src/battle/scene/spell_animation.h"
#include "src/battle/scene/technique_animation.h"

namespace orvane {
namespace {

constexpr Colour kWhite = Rgb(255, 255, 255);
constexpr int kSparkles = 6;
constexpr int kLastFrame = 50;

// The frames that the four runners share.
bool StepsOut(int frame) {
  return frame == 2 || frame == 4;
}
bool ShowsSkill(int frame) {
  return frame >= 6 && frame <= 24;
}
bool ShowsNumbers(int frame) {
  return frame >= 26 && frame <= 44;
}
bool StepsBack(int frame) {
  return frame == 46 || frame == 48;
}

// A hero pays for a skill; nothing tests here what the command has tested.
void Pay(BattleScreen& battle, int hero, const Array<Int16, 11>& costs) {
  battle.state.MP[hero] -= costs[battle.Skills.ListIndex - 1];
  StatusDisplay(battle);
}

void RebuildScene(BattleScreen& battle) {
  DrawBackground(battle);
  DrawEnemySide(battle);
}

void HoldWithNumbers(BattleScreen& battle) {
  HeroHolding(battle);
  DamageDisplay(battle);
}

void HideEnemyNumber(BattleScreen& battle, int slot) {
  battle.EnemyNumbers[slot - 1].Visible = false;
}

void HideHeroNumbers(BattleScreen& battle) {
  battle.HeroNumbers[0].Visible = false;
  battle.HeroNumbers[1].Visible = false;
  battle.HeroActionPanel.Visible = false;
}

void EndAttack(BattleScreen& battle) {
  HitEnemies(battle);
  HeroActionEnd(battle);
  DrawEnemySide(battle);
  DrawHeroes(battle);
  VictoryCheck(battle);
}

}  // namespace

void WazaRun(BattleScreen& battle) {
  const int frame = battle.state.ActionState;
  if (frame == 2) Pay(battle, 0, battle.state.WazaMP);
  if (StepsOut(frame)) HeroStepOut(battle, frame);
  if (ShowsSkill(frame)) WazaPlay(battle, frame, battle.Skills.ListIndex);
  if (frame == 26) RebuildScene(battle);
  if (ShowsNumbers(frame)) HoldWithNumbers(battle);
  if (StepsBack(frame)) {
    battle.HeroActionPanel.Visible = false;
    HideEnemyNumber(battle, battle.Targets.ListIndex);
    HideEnemyNumber(battle, BigSlot);
    HeroStepBack(battle, frame);
  }
  if (frame == kLastFrame) EndAttack(battle);
  battle.Scene.Picture.Refresh();
}

void MagicRun(BattleScreen& battle) {
  const int frame = battle.state.ActionState;
  if (frame == 2) Pay(battle, 1, battle.state.MagicMP);
  if (StepsOut(frame)) HeroStepOut(battle, frame);
  if (frame == 6) EnemyFlash(battle);
  if (ShowsSkill(frame)) MagicPlay(battle, frame, battle.Skills.ListIndex);
  if (frame == 26) RebuildScene(battle);
  if (ShowsNumbers(frame)) HoldWithNumbers(battle);
  if (StepsBack(frame)) {
    battle.HeroActionPanel.Visible = false;
    for (int slot = 1; slot <= battle.state.EnemyCount; ++slot) HideEnemyNumber(battle, slot);
    HideEnemyNumber(battle, BigSlot);
    HeroStepBack(battle, frame);
  }
  if (frame == kLastFrame) EndAttack(battle);
  battle.Scene.Picture.Refresh();
}

void HealRun(BattleScreen& battle) {
  const int frame = battle.state.ActionState;
  if (frame == 2) Pay(battle, 1, battle.state.MagicMP);
  if (StepsOut(frame)) HeroStepOut(battle, frame);
  if (ShowsSkill(frame)) MagicPlay(battle, frame, battle.Skills.ListIndex);
  if (frame == 26) DrawHeroes(battle);
  if (ShowsNumbers(frame)) DamageDisplay(battle);
  if (StepsBack(frame)) {
    HeroStepBack(battle, frame);
    HideHeroNumbers(battle);
  }
  if (frame == kLastFrame) {
    StatusDisplay(battle);
    HeroActionEnd(battle);
    battle.HeroNumbers[0].ForeColor = kWhite;
    battle.HeroNumbers[1].ForeColor = kWhite;
    DrawHeroes(battle);
  }
  battle.Scene.Picture.Refresh();
}

void ItemRun(BattleScreen& battle) {
  State& state = battle.state;
  const int frame = state.ActionState;
  const int target = battle.Receivers.ListIndex - 1;
  Randomize(battle.game);
  if (StepsOut(frame)) HeroStepOut(battle, frame);
  if (frame == 6) battle.game.sound.Play("snd5");
  if (ShowsSkill(frame)) {
    for (int i = 0; i < kSparkles; ++i) {
      const ScenePoint at = PointOverHero(battle, target);
      DrawEffect(battle, 1, 0, {at.X, at.Y, 24, 24});
    }
  }
  if (frame == 26) DrawHeroes(battle);
  if (ShowsNumbers(frame)) DamageDisplay(battle);
  if (StepsBack(frame)) {
    HeroStepBack(battle, frame);
    HideHeroNumbers(battle);
  }
  if (frame == kLastFrame) {
    HeroActionEnd(battle);
    battle.HeroNumbers[target].ForeColor = kWhite;
    state.Items[battle.BagItems.ListIndex - 1] = NoItem;
    state.ItemCount -= 1;
    DrawHeroes(battle);
  }
  battle.Scene.Picture.Refresh();
}

}  // namespace orvane
