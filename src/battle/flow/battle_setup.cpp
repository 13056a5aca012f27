#include "src/battle/flow/battle_setup.h"

#include "src/battle/battle_screen.h"
#include "src/battle/rules/battle_tables.h"
#include "src/battle/rules/formation.h"
#include "src/battle/scene/battle_drawing.h"
#include "src/battle/scene/hero_poses.h"
#include "src/core/main_activation.h"
#include "src/core/music.h"

namespace orvane {
namespace {

// The first of the five ordinary kinds of a round; none in other rounds.
void RollKind(BattleScreen& battle) {
  State& state = battle.state;
  if (state.Round < 1 || state.Round > 3) return;
  const int first = 3 + (state.Round - 1) * 5;
  state.EnemyKind = RoundToInt16(Int(Rnd(battle.game) * 5 + first));
}

void SetUpBig(BattleScreen& battle) {
  State& state = battle.state;
  state.EnemyCount = 1;
  state.EnemyAlive[BigSlot - 1] = True;
  state.EnemyLife[BigSlot - 1] = state.EnemyHP[EnemyRow(state)];
  DrawEnemySide(battle);
}

void SetUpGroup(BattleScreen& battle) {
  State& state = battle.state;
  for (int slot = 1; slot <= state.EnemyCount; ++slot) {
    state.EnemyLife[slot - 1] = state.EnemyHP[state.EnemyKind];
    state.EnemyAlive[slot - 1] = True;
    DrawEnemyInSlot(battle, slot);
  }
}

const char* FightMusic(const State& state) {
  if (state.BossFight == True) return "bgm5";
  if (state.LastBossFight == True) return "bgm6";
  return "bgm4";
}

}  // namespace

void NameTab(BattleScreen& battle, int hero) {
  battle.HeroTabs.SetTabCaption(hero, battle.state.HeroName[hero].Trimmed());
}

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
  StatusDisplay(battle);
  const bool bone_dragon =
      state.EnemyKind == BoneDragonKind && state.BossFight != True && state.LastBossFight != True;
  if (!bone_dragon) battle.FleeButton.Enabled = false;
  battle.MusicTimer.SetEnabled(true);
  NameTab(battle, 0);
  NameTab(battle, 1);
}

void BattleSetUp(BattleScreen& battle) {
  State& state = battle.state;
  Randomize(battle.game);
  DrawBackground(battle);
  DrawHeroAt(battle, 0, 365);
  DrawHeroAt(battle, 1, 385);
  RollKind(battle);
  state.EnemyCount = RoundToInt16(Int(Rnd(battle.game) * 4 + 1));
  for (int index = 0; index < 5; ++index) state.EnemyAlive[index] = False;
  if (IsBigFight(state)) {
    SetUpBig(battle);
  } else {
    SetUpGroup(battle);
  }
  battle.Scene.Picture.Refresh();
}

void BattleMusic(BattleScreen& battle) {
  RestartStoppedMusic(battle.game, FightMusic(battle.state));
}

void AbandonBattle(BattleScreen& battle) {
  State& state = battle.state;
  state.ActionKind = Action::None;
  state.FieldFrame = state.MessageFrame = state.StoryFrame = 0;
  state.ActionState = 0;
  ClearDirections(battle.game);
  battle.MusicTimer.SetEnabled(false);
  battle.game.stage.Hide(battle);
  battle.game.stage.Show(battle.game.Main);
  battle.game.Main.WalkTimer.SetEnabled(true);
}

}  // namespace orvane
