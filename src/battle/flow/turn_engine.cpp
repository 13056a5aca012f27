#include "src/battle/flow/turn_engine.h"

#include "src/battle/battle_screen.h"
#include "src/battle/flow/enemy_actions.h"
#include "src/battle/flow/skill_runs.h"
#include "src/battle/flow/victory.h"
#include "src/battle/rules/formation.h"
#include "src/battle/rules/hits.h"
#include "src/battle/scene/battle_drawing.h"
#include "src/battle/scene/hero_poses.h"

namespace orvane {
namespace {

constexpr int kFightEnd = 30;
constexpr int kActionEnd = 50;

// Decides what the enemy side does in this round; a dragon's special is rolled on the closing frame
// alone.
void DecideEnemyPhase(BattleScreen& battle, int roll_frame) {
  State& state = battle.state;
  const auto roll = [&] {
    if (state.ActionState == roll_frame) state.BossMove = RoundToInt16(Int(Rnd(battle.game) * 5));
    return state.BossMove == 1;
  };
  if (state.BossFight == True) {
    const bool special = roll() && state.Round != 1;
    state.EnemyTurns = state.Round == 3 && !special ? 2 : 1;
    if (special) state.ActionKind = Action::BossSpecial;
  } else if (state.LastBossFight == True) {
    const bool special = roll();
    state.EnemyTurns = special ? 1 : 2;
    if (special) state.ActionKind = Action::LastBossSpecial;
  } else {
    if (state.EnemyKind == BoneDragonKind) state.EnemyTurns = 2;
    for (int slot = 1; slot <= state.EnemyCount; ++slot) {
      if (state.EnemyAlive[slot - 1] == True) state.EnemyTurns += 1;
    }
  }
}

void PassToEnemies(BattleScreen& battle, int roll_frame) {
  State& state = battle.state;
  for (int hero = 0; hero < 2; ++hero) {
    state.HeroBusy[hero] = False;
    battle.HeroTabs.SetTabEnabled(hero, false);
  }
  state.ActionKind = Action::EnemyAttack;
  DecideEnemyPhase(battle, roll_frame);
  state.HeroesActed = 0;
}

void AskNextHero(BattleScreen& battle) {
  battle.FightButton.Enabled = true;
  (battle.HeroTabs.Tab() == 0 ? battle.TechniqueButton : battle.SpellButton).Enabled = true;
  battle.ItemButton.Enabled = true;
  battle.ActionTimer.SetEnabled(false);
}

// What the ends of all actions share.
void CloseAction(BattleScreen& battle, int roll_frame) {
  State& state = battle.state;
  const int other = battle.HeroTabs.Tab() ^ 1;
  if (state.HeroFainted[other] == False) {
    battle.HeroTabs.SetTab(other);
    battle.HeroTabs.SetTabEnabled(other, true);
  } else {
    battle.HeroTabs.SetTabEnabled(other ^ 1, true);
    battle.HeroTabs.SetTabEnabled(other, false);
  }
  if (state.HeroesActed == 2) {
    PassToEnemies(battle, roll_frame);
  } else {
    AskNextHero(battle);
  }
}

}  // namespace

void ActionTick(BattleScreen& battle) {
  State& state = battle.state;
  if (state.ActionKind < Action::Fight || state.ActionKind > Action::LastBossSpecial) return;
  state.ActionState += 2;
  switch (state.ActionKind) {
    case Action::Fight:
      return FightRun(battle);
    case Action::Magic:
      return MagicRun(battle);
    case Action::Waza:
      return WazaRun(battle);
    case Action::EnemyAttack:
      return EnemyAtaNormal(battle);
    case Action::Heal:
      return HealRun(battle);
    case Action::Item:
      return ItemRun(battle);
    case Action::BossSpecial:
      return EnemyAtaFire(battle);
    case Action::LastBossSpecial:
      return EnemyAtaDeath(battle);
    default:
      return;
  }
}

void FightRun(BattleScreen& battle) {
  State& state = battle.state;
  const int frame = state.ActionState;
  if (frame == 2 || frame == 4) HeroStepOut(battle, frame);
  if (frame == 6) {
    battle.game.sound.Play("snd2");
    EnemyRecoil(battle);
  }
  if (frame >= 6 && frame <= 24) DamageDisplay(battle);
  if (frame == 26 || frame == 28) {
    DrawEnemySide(battle);
    battle.EnemyNumbers[battle.Targets.ListIndex - 1].Visible = false;
    battle.EnemyNumbers[BigSlot - 1].Visible = false;
    HeroStepBack(battle, frame);
  }
  if (frame == kFightEnd) {
    HitEnemies(battle);
    CloseAction(battle, kFightEnd);
    battle.Targets.Clear();
    state.ActionState = 0;
    DrawEnemySide(battle);
    DrawHeroes(battle);
    VictoryCheck(battle);
  }
  battle.Scene.Picture.Refresh();
}

void HeroActionEnd(BattleScreen& battle) {
  CloseAction(battle, kActionEnd);
  battle.Skills.Clear();
  battle.Targets.Clear();
  battle.state.ActionState = 0;
}

}  // namespace orvane
