#include "src/battle/flow/enemy_actions.h"

#include <cmath>

#include "src/battle/battle_screen.h"
#include "src/battle/flow/action_table.h"
#include "src/battle/flow/turn_engine.h"
#include "src/battle/scene/battle_drawing.h"
#include "src/battle/scene/hero_poses.h"
#include "src/battle/scene/numbers.h"
#include "src/core/quit.h"

namespace orvane {
namespace {

constexpr int kFireSize = 72;
constexpr int kSparks = 11;
constexpr int kDeathShake = 20;  // twips

// What every frame of an enemy attack begins with.
int BeginFrame(BattleScreen& battle) {
  Randomize(battle.game);
  for (CommandButton* button :
       {&battle.FightButton, &battle.SpellButton, &battle.TechniqueButton, &battle.ItemButton}) {
    button->Enabled = false;
  }
  return battle.state.ActionState;
}

void ShowName(BattleScreen& battle, const char* name) {
  battle.EnemyActionPanel.Visible = true;
  battle.EnemyActionName.Caption = name;
}

void HideNumbers(BattleScreen& battle) {
  battle.EnemyActionPanel.Visible = false;
  HideHeroNumbers(battle);
}

void DrawFireball(BattleScreen& battle, int frame) {
  const Int16 x = RoundToInt16(std::cos(frame) * 10 + 355);
  const int y = 246 - (frame - 15) * 20;
  DrawEffect(battle, 4, 4, {x, y, kFireSize, kFireSize});
}

void DrawSparks(BattleScreen& battle) {
  for (int i = 0; i < kSparks; ++i) {
    const Int16 x = Roll(battle.game, 200, 230);
    const Int16 y = Roll(battle.game, 230, 50);
    const Int16 size = Roll(battle.game, 48, 24);
    DrawEffect(battle, 1, 3, {x, y, size, size});
  }
}

void DrawDeathBand(BattleScreen& battle, int frame) {
  const int half = (frame - 10) * 4;
  FillBox(battle.Scene.Picture, 0, 146 - half, 432, 146 + half, Rgb(255, 0, (frame - 10) * 10));
}

// One hero stands: his pane alone is open, and one action is enough to bring the enemies.
void LeaveToOne(BattleScreen& battle, int standing) {
  battle.HeroTabs.SetTabEnabled(standing ^ 1, false);
  battle.HeroTabs.SetTab(standing);
  battle.HeroTabs.SetTabEnabled(standing, true);
  battle.state.HeroesActed = 1;
}

void EnableCommands(BattleScreen& battle) {
  const State& state = battle.state;
  battle.FightButton.Enabled = true;
  if (state.HeroFainted[1] == kFalse && battle.ActingHero() == 1) {
    battle.SpellButton.Enabled = true;
  } else if (state.HeroFainted[0] == kFalse && battle.ActingHero() == 0) {
    battle.TechniqueButton.Enabled = true;
  }
  battle.ItemButton.Enabled = true;
}

void EndPhase(BattleScreen& battle) {
  State& state = battle.state;
  state.ActionKind = Action::Nothing;
  state.EnemyTurns = 0;
  EnableCommands(battle);
  const bool first_stands = state.HeroFainted[0] == kFalse;
  const bool second_stands = state.HeroFainted[1] == kFalse;
  if (first_stands && second_stands) {
    battle.HeroTabs.SetTabEnabled(0, true);
    battle.HeroTabs.SetTabEnabled(1, true);
  } else {
    LeaveToOne(battle, first_stands ? 0 : 1);
    if (!first_stands && !second_stands) battle.HeroTabs.SetTabEnabled(1, false);
  }
  battle.ActionTimer.SetEnabled(false);
}

bool BothHaveFainted(const State& state) {
  return state.HeroFainted[0] != kFalse && state.HeroFainted[1] != kFalse;
}

// The end of the party: closes all sound, tells so, and ends the program with the answer.
void PartyWiped(BattleScreen& battle) {
  constexpr int last_music = 7;
  CloseAllSound(battle.game, last_music);
  battle.game.stage.Ask({"全滅しました。", "GAME OVER", BoxButtons::Ok},
                        [&battle](BoxAnswer) { battle.game.stage.EndProgram(0); });
}

// The last frame of an attack: the next one follows, or the heroes are asked again. Where nobody is
// left to be asked the scene stays as it was before it.
void EndAttack(BattleScreen& battle, const ActionRow& row) {
  row.Apply(battle);
  HideNumbers(battle);
  battle.state.EnemyTurns -= 1;
  if (battle.state.EnemyTurns < 1) {
    EndPhase(battle);
    if (BothHaveFainted(battle.state)) return PartyWiped(battle);
  }
  battle.state.ActionState = 0;
  battle.Scene.Picture.Refresh();
}

}  // namespace

void PlayEnemyAttack(BattleScreen& battle, const ActionRow& row) {
  const int frame = BeginFrame(battle);
  if (frame == row.ComputingFrame) {
    battle.game.sound.Play(kBlastSound);
    battle.state.EnemyRoll = Roll(battle.game, 10);
    HeroHurtPose(battle);
  }
  if (row.ShowsNumbers(frame)) PlayNumbersFrame(battle, row);
  if (frame == row.LastFrame) {
    DrawHeroes(battle);
    return EndAttack(battle, row);
  }
  battle.Scene.Picture.Refresh();
}

void PlayHellFire(BattleScreen& battle, const ActionRow& row) {
  const int frame = BeginFrame(battle);
  if (frame < 15) ShowName(battle, "獄　炎");
  if (frame == 16) battle.game.sound.Play(kFireSound);
  if (frame >= 16 && frame <= 34) DrawFireball(battle, frame);
  if (frame == row.ComputingFrame) {
    DrawBackground(battle);
    DrawHeroes(battle);
    DrawRoundBoss(battle);
  }
  if (row.ShowsNumbers(frame)) PlayNumbersFrame(battle, row);
  if (frame == row.LastFrame) return EndAttack(battle, row);
  battle.Scene.Picture.Refresh();
}

void PlayDeathSplit(BattleScreen& battle, const ActionRow& row) {
  const int frame = BeginFrame(battle);
  if (frame < 15) ShowName(battle, "デス･スプリート");
  if (frame >= 16 && frame <= 34) {
    battle.game.sound.Play(kAtomicSound);
    ShakeUpDown(battle, frame, kDeathShake);
    DrawDeathBand(battle, frame);
    DrawSparks(battle);
  }
  if (frame == row.ComputingFrame) {
    DrawBackground(battle);
    DrawLastBoss(battle);
    DrawHeroes(battle);
  }
  if (row.ShowsNumbers(frame)) PlayNumbersFrame(battle, row);
  if (frame == row.LastFrame) return EndAttack(battle, row);
  battle.Scene.Picture.Refresh();
}

}  // namespace orvane
