#include "src/battle/battle_action.h"

#include <string>

#include "src/battle/battle_drawing.h"
#include "src/battle/battle_screen.h"
#include "src/battle/battle_setup.h"
#include "src/battle/formation.h"
#include "src/battle/formulas.h"

namespace orvane {
namespace {

constexpr int kLastTargetSpell = 3;  // spells beyond this row strike all
constexpr Colour kHealingGreen = Rgb(0, 255, 0);

// The slot of the target, from 1.
int TargetSlot(BattleScreen& battle) {
  return IsBigFight(battle.state) ? BigSlot : battle.List2.ListIndex;
}

void Write(Label& label, int number) {
  label.Caption = std::to_string(number);
}

// Frame at which the numbers of an action appear and its result is computed.
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

// Shows a number and moves it along its hop, which ends where it began.
void Hop(BattleScreen& battle, Label& label) {
  const int base = ComputingFrame(battle.state.ActionKind) - 1;
  label.Visible = true;
  label.At.Top += battle.state.ActionState - base - 10;
}

void DrawHitMark(BattleScreen& battle) {
  if (IsBigFight(battle.state)) return DrawEffect(battle, 6, 1, {110, 170, 48, 48});
  const int slot = battle.List2.ListIndex;
  DrawEffect(battle, 6, 1, {SlotX(slot) + 20, SlotY(slot) + 20, 48, 48});
}

void HopHealing(BattleScreen& battle, Label& label) {
  label.ForeColor = kHealingGreen;
  Hop(battle, label);
}

void HopNumbers(BattleScreen& battle) {
  State& state = battle.state;
  switch (state.ActionKind) {
    case Action::Fight:
      DrawHitMark(battle);
      return Hop(battle, battle.Label15[TargetSlot(battle) - 1]);
    case Action::Magic:
      if (IsBigFight(state) || battle.List1.ListIndex <= kLastTargetSpell) {
        return Hop(battle, battle.Label15[TargetSlot(battle) - 1]);
      }
      for (int slot = 1; slot <= state.EnemyCount; ++slot) {
        if (state.EnemyAlive[slot - 1] == True) Hop(battle, battle.Label15[slot - 1]);
      }
      return;
    case Action::Waza:
      return Hop(battle, battle.Label15[TargetSlot(battle) - 1]);
    case Action::EnemyAttack:
      return Hop(battle, battle.Label16[state.EnemyRoll % 2]);
    case Action::Heal:
      HopHealing(battle, battle.Label16[0]);
      return HopHealing(battle, battle.Label16[1]);
    case Action::Item:
      return HopHealing(battle, battle.Label16[battle.List4.ListIndex - 1]);
    case Action::BossSpecial:
    case Action::LastBossSpecial:
      Hop(battle, battle.Label16[0]);
      return Hop(battle, battle.Label16[1]);
    default:
      return;
  }
}

void CalcFight(BattleScreen& battle) {
  State& state = battle.state;
  const int hero = battle.SSTab1.Tab();
  state.AttackDamage = FightDamage(state.Attack[hero], state.EnemyDefence[state.EnemyKind],
                                   state.Level[hero], Rnd(battle.game));
  Write(battle.Label15[TargetSlot(battle) - 1], state.AttackDamage);
}

void CalcMagicFor(BattleScreen& battle, int slot, double draw) {
  State& state = battle.state;
  const int n = battle.List1.ListIndex;
  const double factor = FactorOf(state.MagicUse[n - 1], state.MagicMaster[n - 1]);
  state.MagicDamage[slot - 1] = SpellDamage(n, state.MagicMP[n - 1], state.Spirit[1],
                                            state.Level[battle.SSTab1.Tab()], factor, draw);
  Write(battle.Label15[slot - 1], state.MagicDamage[slot - 1]);
}

// The first draw is for a big enemy; in other fights it goes unused, and every target takes a fresh
// one.
void CalcMagic(BattleScreen& battle) {
  const double draw = Rnd(battle.game);
  if (IsBigFight(battle.state)) return CalcMagicFor(battle, BigSlot, draw);
  if (battle.List1.ListIndex <= kLastTargetSpell) {
    return CalcMagicFor(battle, TargetSlot(battle), Rnd(battle.game));
  }
  for (int slot = 1; slot <= battle.state.EnemyCount; ++slot)
    CalcMagicFor(battle, slot, Rnd(battle.game));
}

void CalcWaza(BattleScreen& battle) {
  State& state = battle.state;
  const int n = battle.List1.ListIndex;
  const double factor = FactorOf(state.WazaUse[n - 1], state.WazaMaster[n - 1]);
  state.WazaDamage =
      TechniqueDamage(n, state.WazaMP[n - 1], state.Spirit[0], state.Attack[battle.SSTab1.Tab()],
                      state.EnemyDefence[state.EnemyKind], factor, Rnd(battle.game));
  Write(battle.Label15[TargetSlot(battle) - 1], state.WazaDamage);
}

void CalcEnemyAttack(BattleScreen& battle) {
  State& state = battle.state;
  if (state.BossFight == True) state.EnemyKind = state.Round - 1;
  const int target = state.EnemyRoll % 2;
  state.EnemyDamage = EnemyAttackDamage(state.EnemyAttack[state.EnemyKind], state.EnemyRoll,
                                        state.Round, state.Defence[target]);
  Write(battle.Label16[target], state.EnemyDamage);
}

void CalcHeal(BattleScreen& battle) {
  State& state = battle.state;
  const int n = battle.List1.ListIndex;
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
  const int hero = battle.List4.ListIndex - 1;
  for (const BattleItem& item : kBattleItems) {
    if (state.Items[battle.List3.ListIndex - 1] != item.Number) continue;
    state.HP[hero] += item.HP;
    state.MP[hero] += item.MP;
    state.HeroFainted[hero] = False;
    NameTab(battle, hero);
    Write(battle.Label16[hero], item.HP);
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
  Write(battle.Label16[0], state.BreathDamage[0]);
  Write(battle.Label16[1], state.BreathDamage[1]);
}

void Faint(BattleScreen& battle, int hero) {
  battle.state.HeroFainted[hero] = True;
  battle.SSTab1.SetTabCaption(hero, "気絶");
}

void HitWithMagic(BattleScreen& battle, int slot) {
  State& state = battle.state;
  if (battle.List1.ListIndex <= kLastTargetSpell) {
    state.EnemyLife[slot - 1] -= state.MagicDamage[slot - 1];
    EnemyKillCheck(battle, slot);
  } else {
    for (int each = 1; each <= state.EnemyCount; ++each) {
      state.EnemyLife[each - 1] -= state.MagicDamage[each - 1];
      EnemyKillCheck(battle, each);
    }
  }
  // A big enemy takes a spell once more. The balance of the game counts on it.
  if (IsBigFight(state)) {
    state.EnemyLife[slot - 1] -= state.MagicDamage[slot - 1];
    EnemyKillCheck(battle, slot);
  }
}

}  // namespace

void DamageDisplay(BattleScreen& battle) {
  HopNumbers(battle);
  DamageCalc(battle);
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
    Write(battle.Label16[0], state.HealAmount[0]);
    Write(battle.Label16[1], state.HealAmount[1]);
  }
}

void HitEnemies(BattleScreen& battle) {
  State& state = battle.state;
  const int slot = TargetSlot(battle);
  switch (state.ActionKind) {
    case Action::Fight:
      state.EnemyLife[slot - 1] -= state.AttackDamage;
      return EnemyKillCheck(battle, slot);
    case Action::Waza:
      state.EnemyLife[slot - 1] -= state.WazaDamage;
      return EnemyKillCheck(battle, slot);
    case Action::Magic:
      return HitWithMagic(battle, slot);
    default:
      return;
  }
}

void HitHeroes(BattleScreen& battle) {
  State& state = battle.state;
  if (state.ActionKind == Action::BossSpecial || state.ActionKind == Action::LastBossSpecial) {
    for (int hero = 0; hero < 2; ++hero) {
      state.HP[hero] -= state.BreathDamage[hero];
      if (state.HP[hero] < 1) Faint(battle, hero);
    }
    StatusDisplay(battle);
    return;
  }
  const int target = state.EnemyRoll % 2;
  state.HP[target] -= state.EnemyDamage;
  StatusDisplay(battle);
  if (state.HP[target] <= 0) Faint(battle, target);
}

void EnemyKillCheck(BattleScreen& battle, int slot) {
  State& state = battle.state;
  if (state.EnemyLife[slot - 1] > 0) return;
  state.EnemyAlive[slot - 1] = False;
  RedrawCells(battle, SlotCells(slot));
}

}  // namespace orvane
