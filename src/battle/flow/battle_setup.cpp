#include "src/battle/flow/battle_setup.h"

#include "src/battle/battle_screen.h"
#include "src/battle/rules/enemy_table.h"
#include "src/battle/rules/formation.h"
#include "src/battle/scene/battle_drawing.h"
#include "src/battle/scene/hero_poses.h"
#include "src/battle/scene/status_panes.h"
#include "src/core/main_activation.h"
#include "src/core/music.h"

namespace orvane {
namespace {

void DrawEnemies(BattleScreen& battle) {
  if (IsBigFight(battle.state)) return DrawEnemySide(battle);
  for (int slot = 1; slot <= battle.state.EnemyCount; ++slot) DrawEnemyInSlot(battle, slot);
}

}  // namespace

void LoadBattle(BattleScreen& battle) {
  battle.SpellButton.Enabled = false;
  BattleSetUp(battle);
  NameTab(battle, 0);
  NameTab(battle, 1);
}

void OpenBattle(BattleScreen& battle) {
  const State& state = battle.state;
  FillEnemyTable(battle.state);
  battle.HeroTabs.SetTab(0);
  battle.FightButton.Enabled = true;
  battle.ItemButton.Enabled = true;
  battle.TechniqueButton.Enabled = true;
  BattleSetUp(battle);
  RefreshStatus(battle);
  const bool bone_dragon = state.EnemyKind == kBoneDragonKind && state.BossFight != kTrue &&
                           state.LastBossFight != kTrue;
  if (!bone_dragon) battle.FleeButton.Enabled = false;
  battle.MusicTimer.SetEnabled(true);
  NameTab(battle, 0);
  NameTab(battle, 1);
}

void BattleSetUp(BattleScreen& battle) {
  Randomize(battle.game);
  FormEnemies(battle.state, battle.game.services.Luck);
  DrawBackground(battle);
  DrawHeroAt(battle, kMan, 365);
  DrawHeroAt(battle, kWoman, 385);
  DrawEnemies(battle);
  battle.Scene.Picture.Refresh();
}

void BattleMusic(BattleScreen& battle) {
  RestartStoppedMusic(battle.game, FightMusicOf(battle.state));
}

void LeaveBattle(BattleScreen& battle) {
  ClearDirections(battle.game);
  for (const char* music : {kFightMusic, kDragonMusic, kLastDragonMusic})
    battle.game.sound.Close(music);
  battle.MusicTimer.SetEnabled(false);
  battle.game.stage.Hide(battle);
  battle.FleeButton.Enabled = true;
  for (int hero = 0; hero < 2; ++hero) {
    battle.HeroTabs.SetTabEnabled(hero, true);
    battle.state.HeroBusy[hero] = kFalse;
  }
  battle.game.stage.Show(battle.game.Main);
}

void AbandonBattle(BattleScreen& battle) {
  State& state = battle.state;
  state.ActionKind = Action::Nothing;
  state.FieldFrame = state.MessageFrame = state.StoryFrame = 0;
  state.ActionState = 0;
  ClearDirections(battle.game);
  battle.MusicTimer.SetEnabled(false);
  battle.game.stage.Hide(battle);
  battle.game.stage.Show(battle.game.Main);
  battle.game.Main.WalkTimer.SetEnabled(true);
}

}  // namespace orvane
