#include <string>

#include "src/battle/flow/battle_setup.h"
#include "src/battle/rules/action_target.h"
#include "src/battle/rules/formulas.h"
#include "src/battle/rules/hits.h"
#include "src/battle/scene/battle_drawing.h"

namespace orvane {
namespace {

void Write(Label& label, int number) {
  label.Caption = std::to_string(number);
}

void CalcFight(BattleScreen& battle) {
  State& state = battle.state;
  const int hero = battle.HeroTabs.Tab();
  state.AttackDamage = FightDamage(state.Attack[hero], state.EnemyDefence[state.EnemyKind],
                                   state.Level[hero], Rnd(battle.game));
  Write(battle.EnemyNumbers[TargetSlot(battle) - 1], state.AttackDamage);
}

void CalcMagicFor(BattleScreen& battle, int slot, double draw) {
  State& state = battle.state;
  const int n = battle.Skills.ListIndex;
  const double factor = FactorOf(state.MagicUse[n - 1], state.MagicMaster[n - 1]);
  state.MagicDamage[slot - 1] = SpellDamage(n, state.MagicMP[n - 1], state.Spirit[1],
                                            state.Level[battle.HeroTabs.Tab()], factor, draw);
  Write(battle.EnemyNumbers[slot - 1], state.MagicDamage[slot - 1]);
}

// The first draw is for a big enemy; in other fights it goes unused, and every target takes a fresh
// one.
void CalcMagic(BattleScreen& battle) {
  const double draw = Rnd(battle.game);
  if (IsBigFight(battle.state)) return CalcMagicFor(battle, BigSlot, draw);
  if (battle.Skills.ListIndex <= LastOneTargetSpell) {
    return CalcMagicFor(battle, TargetSlot(battle), Rnd(battle.game));
  }
  for (int slot = 1; slot <= battle.state.EnemyCount; ++slot)
    CalcMagicFor(battle, slot, Rnd(battle.game));
}

void CalcWaza(BattleScreen& battle) {
  State& state = battle.state;
  const int n = battle.Skills.ListIndex;
  const double factor = FactorOf(state.WazaUse[n - 1], state.WazaMaster[n - 1]);
  state.WazaDamage =
      TechniqueDamage(n, state.WazaMP[n - 1], state.Spirit[0], state.Attack[battle.HeroTabs.Tab()],
                      state.EnemyDefence[state.EnemyKind], factor, Rnd(battle.game));
  Write(battle.EnemyNumbers[TargetSlot(battle) - 1], state.WazaDamage);
}

void CalcEnemyAttack(BattleScreen& battle) {
  State& state = battle.state;
  if (state.BossFight == True) state.EnemyKind = state.Round - 1;
  const int target = state.EnemyRoll % 2;
  state.EnemyDamage = EnemyAttackDamage(state.EnemyAttack[state.EnemyKind], state.EnemyRoll,
                                        state.Round, state.Defence[target]);
  Write(battle.HeroNumbers[target], state.EnemyDamage);
}

void CalcHeal(BattleScreen& battle) {
  State& state = battle.state;
  const int n = battle.Skills.ListIndex;
  const double factor = FactorOf(state.MagicUse[n - 1], state.MagicMaster[n - 1]);
  state.HealAmount[0] = HealingOf(n, state.MaxHP[0], 8, state.Spirit[1], factor);
  state.HealAmount[1] = HealingOf(n, state.MaxHP[1], 9, state.Spirit[1], factor);
  for (int hero = 0; hero < 2; ++hero) {
    state.HP[hero] += state.HealAmount[hero];
    state.HeroFainted[hero] = False;
    NameTab(battle, hero);
    if (state.HP[hero] > state.MaxHP[hero]) state.HP[hero] = state.MaxHP[hero];
  }
}

struct BattleItem {
  int Number;
  int HP;
  int MP;
};

constexpr BattleItem kBattleItems[] = {{47, 200, 20}, {48, 500, 50}, {49, 9999, 999}};

void CalcItem(BattleScreen& battle) {
  State& state = battle.state;
  const int hero = battle.Receivers.ListIndex - 1;
  for (const BattleItem& item : kBattleItems) {
    if (state.Items[battle.BagItems.ListIndex - 1] != item.Number) continue;
    state.HP[hero] += item.HP;
    state.MP[hero] += item.MP;
    state.HeroFainted[hero] = False;
    NameTab(battle, hero);
    Write(battle.HeroNumbers[hero], item.HP);
  }
  StatusDisplay(battle);
}

Int16 BreathOn(BattleScreen& battle, int spread, int least) {
  return RoundToInt16(Int(Rnd(battle.game) * spread)) + least;
}

void CalcBreath(BattleScreen& battle) {
  State& state = battle.state;
  if (state.ActionKind == Action::LastBossSpecial) {
    state.BreathDamage[0] = BreathOn(battle, 100, 1200);
    state.BreathDamage[1] = BreathOn(battle, 100, 1100);
  } else if (state.Round == 2) {
    state.BreathDamage[0] = BreathOn(battle, 50, 350);
    state.BreathDamage[1] = BreathOn(battle, 50, 340);
  } else if (state.Round == 3) {
    state.BreathDamage[0] = BreathOn(battle, 50, 850);
    state.BreathDamage[1] = BreathOn(battle, 50, 750);
  }
  Write(battle.HeroNumbers[0], state.BreathDamage[0]);
  Write(battle.HeroNumbers[1], state.BreathDamage[1]);
}

}  // namespace

int ComputingFrame(int kind) {
  switch (kind) {
    case Action::Fight:
      return 6;
    case Action::EnemyAttack:
      return 16;
    case Action::BossSpecial:
    case Action::LastBossSpecial:
      return 36;
    default:
      return 26;
  }
}

void DamageCalc(BattleScreen& battle) {
  State& state = battle.state;
  Randomize(battle.game);
  if (state.ActionState == ComputingFrame(state.ActionKind)) {
    switch (state.ActionKind) {
      case Action::Fight:
        CalcFight(battle);
        break;
      case Action::Magic:
        CalcMagic(battle);
        break;
      case Action::Waza:
        CalcWaza(battle);
        break;
      case Action::EnemyAttack:
        CalcEnemyAttack(battle);
        break;
      case Action::Heal:
        CalcHeal(battle);
        break;
      case Action::Item:
        CalcItem(battle);
        break;
      case Action::BossSpecial:
      case Action::LastBossSpecial:
        CalcBreath(battle);
        break;
      default:
        break;
    }
  }
  if (state.ActionKind == Action::Heal) {
    Write(battle.HeroNumbers[0], state.HealAmount[0]);
    Write(battle.HeroNumbers[1], state.HealAmount[1]);
  }
}

}  // namespace orvane
