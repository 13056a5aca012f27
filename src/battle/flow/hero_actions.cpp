#include "src/battle/flow/hero_actions.h"

#include "src/battle/battle_screen.h"
#include "src/battle/flow/action_table.h"
#include "src/battle/flow/turn_engine.h"
#include "src/battle/flow/victory.h"
#include "src/battle/rules/formation.h"
#include "src/battle/scene/battle_drawing.h"
#include "src/battle/scene/hero_poses.h"
#include "src/battle/scene/numbers.h"
#include "src/battle/scene/scatter.h"
#include "src/battle/scene/spell_animation.h"
#include "src/battle/scene/status_panes.h"
#include "src/battle/scene/technique_animation.h"
#include "src/core/bag.h"

namespace orvane {
namespace {

constexpr Colour kWhite = Rgb(255, 255, 255);
constexpr int kSparkles = 6;

// The frames that the runners share.
bool StepsOut(int frame) {
  return frame == 2 || frame == 4;
}
bool ShowsSkill(int frame) {
  return frame >= 6 && frame <= 24;
}
bool StepsBack(const ActionRow& row, int frame) {
  return frame == row.ComputingFrame + 20 || frame == row.ComputingFrame + 22;
}

// A hero pays for a skill; nothing tests here what the command has tested.
void Pay(BattleScreen& battle, int hero, const Array<Int16, 11>& costs) {
  battle.state.MP[hero] -= costs[battle.ChosenSkill() - 1];
  RefreshStatus(battle);
}

void WalkBack(BattleScreen& battle, const ActionRow& row, int frame) {
  HeroStepBack(battle, frame, row.ComputingFrame + 19);
}

// A skill is one hero's own; while the other's pane is open nobody walks back from it.
void WalkBackAlone(BattleScreen& battle, const ActionRow& row, int frame, int hero) {
  if (battle.ActingHero() == hero) WalkBack(battle, row, frame);
}

void RebuildScene(BattleScreen& battle) {
  DrawBackground(battle);
  DrawEnemySide(battle);
}

void HoldWithNumbers(BattleScreen& battle, const ActionRow& row) {
  HeroHolding(battle);
  PlayNumbersFrame(battle, row);
}

void PutNumbersAway(BattleScreen& battle) {
  HideHeroNumbers(battle);
  battle.HeroActionPanel.Visible = false;
}

void WriteHealing(BattleScreen& battle) {
  WriteOverHero(battle, kMan, battle.state.HealAmount[kMan]);
  WriteOverHero(battle, kWoman, battle.state.HealAmount[kWoman]);
}

void EndSkill(BattleScreen& battle) {
  EndHeroAction(battle);
  battle.Skills.Clear();
}

void ShowOutcome(BattleScreen& battle) {
  DrawEnemySide(battle);
  DrawHeroes(battle);
  VictoryCheck(battle);
}

void EndAttackingSkill(BattleScreen& battle, const ActionRow& row) {
  row.Apply(battle);
  EndSkill(battle);
  ShowOutcome(battle);
}

}  // namespace

void PlayFight(BattleScreen& battle, const ActionRow& row) {
  const int frame = battle.state.ActionState;
  if (StepsOut(frame)) HeroStepOut(battle, frame);
  if (frame == 6) {
    battle.game.sound.Play(kCutSound);
    EnemyRecoil(battle);
  }
  if (row.ShowsNumbers(frame)) PlayNumbersFrame(battle, row);
  if (StepsBack(row, frame)) {
    DrawEnemySide(battle);
    HideEnemyNumber(battle, battle.ChosenTarget());
    HideEnemyNumber(battle, kBigSlot);
    WalkBack(battle, row, frame);
  }
  if (frame == row.LastFrame) {
    row.Apply(battle);
    EndHeroAction(battle);
    ShowOutcome(battle);
  }
  battle.Scene.Picture.Refresh();
}

void PlayTechnique(BattleScreen& battle, const ActionRow& row) {
  const int frame = battle.state.ActionState;
  if (frame == 2) Pay(battle, kMan, battle.state.WazaMP);
  if (StepsOut(frame)) HeroStepOut(battle, frame);
  if (ShowsSkill(frame)) PlayTechniqueFrame(battle, frame);
  if (frame == row.ComputingFrame) RebuildScene(battle);
  if (row.ShowsNumbers(frame)) HoldWithNumbers(battle, row);
  if (StepsBack(row, frame)) {
    battle.HeroActionPanel.Visible = false;
    HideEnemyNumber(battle, battle.ChosenTarget());
    HideEnemyNumber(battle, kBigSlot);
    WalkBackAlone(battle, row, frame, kMan);
  }
  if (frame == row.LastFrame) EndAttackingSkill(battle, row);
  battle.Scene.Picture.Refresh();
}

void PlaySpell(BattleScreen& battle, const ActionRow& row) {
  const int frame = battle.state.ActionState;
  if (frame == 2) Pay(battle, kWoman, battle.state.MagicMP);
  if (StepsOut(frame)) HeroStepOut(battle, frame);
  if (frame == 6) EnemyFlash(battle);
  if (ShowsSkill(frame)) PlaySpellFrame(battle, frame);
  if (frame == row.ComputingFrame) RebuildScene(battle);
  if (row.ShowsNumbers(frame)) HoldWithNumbers(battle, row);
  if (StepsBack(row, frame)) {
    battle.HeroActionPanel.Visible = false;
    for (int slot = 1; slot <= battle.state.EnemyCount; ++slot) HideEnemyNumber(battle, slot);
    HideEnemyNumber(battle, kBigSlot);
    WalkBackAlone(battle, row, frame, kWoman);
  }
  if (frame == row.LastFrame) EndAttackingSkill(battle, row);
  battle.Scene.Picture.Refresh();
}

void PlayHealing(BattleScreen& battle, const ActionRow& row) {
  const int frame = battle.state.ActionState;
  if (frame == 2) Pay(battle, kWoman, battle.state.MagicMP);
  if (StepsOut(frame)) HeroStepOut(battle, frame);
  if (ShowsSkill(frame)) PlaySpellFrame(battle, frame);
  if (frame == row.ComputingFrame) DrawHeroes(battle);
  if (row.ShowsNumbers(frame)) {
    PlayNumbersFrame(battle, row);
    WriteHealing(battle);
  }
  if (StepsBack(row, frame)) {
    WalkBackAlone(battle, row, frame, kWoman);
    PutNumbersAway(battle);
  }
  if (frame == row.LastFrame) {
    RefreshStatus(battle);
    EndSkill(battle);
    battle.HeroNumbers[kMan].ForeColor = kWhite;
    battle.HeroNumbers[kWoman].ForeColor = kWhite;
    DrawHeroes(battle);
  }
  battle.Scene.Picture.Refresh();
}

void PlayItem(BattleScreen& battle, const ActionRow& row) {
  State& state = battle.state;
  const int frame = state.ActionState;
  const int receiver = battle.ChosenReceiver();
  Randomize(battle.game);
  if (StepsOut(frame)) HeroStepOut(battle, frame);
  if (frame == 6) battle.game.sound.Play(kHealingSound);
  if (ShowsSkill(frame)) {
    for (int i = 0; i < kSparkles; ++i) {
      const ScenePoint at = PointOverHero(battle, receiver);
      DrawEffect(battle, 1, 0, {at.X, at.Y, 24, 24});
    }
  }
  if (frame == row.ComputingFrame) DrawHeroes(battle);
  if (row.ShowsNumbers(frame)) PlayNumbersFrame(battle, row);
  if (StepsBack(row, frame)) PutNumbersAway(battle);
  if (frame == row.LastFrame) {
    EndSkill(battle);
    battle.HeroNumbers[receiver].ForeColor = kWhite;
    TakeOutOfBag(state, battle.ChosenBagSlot());
    DrawHeroes(battle);
  }
  battle.Scene.Picture.Refresh();
}

}  // namespace orvane
