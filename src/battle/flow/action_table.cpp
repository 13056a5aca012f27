#include "src/battle/flow/action_table.h"

#include "src/battle/battle_screen.h"
#include "src/battle/flow/enemy_actions.h"
#include "src/battle/flow/hero_actions.h"
#include "src/battle/rules/action_results.h"
#include "src/battle/rules/formation.h"
#include "src/battle/rules/hits.h"
#include "src/battle/scene/battle_drawing.h"
#include "src/battle/scene/numbers.h"
#include "src/battle/scene/status_panes.h"

namespace orvane {
namespace {

Chance& Luck(const BattleScreen& battle) {
  return battle.game.services.Luck;
}

void WriteFight(BattleScreen& battle) {
  ComputeFight(battle.state, battle.Chosen(), Luck(battle));
  WriteOverEnemy(battle, battle.TargetSlot(), battle.state.AttackDamage);
}

void WriteTechnique(BattleScreen& battle) {
  ComputeTechnique(battle.state, battle.Chosen(), Luck(battle));
  WriteOverEnemy(battle, battle.TargetSlot(), battle.state.WazaDamage);
}

void WriteSpell(BattleScreen& battle) {
  const State& state = battle.state;
  const Choice choice = battle.Chosen();
  ComputeSpell(battle.state, choice, Luck(battle));
  if (IsBigFight(state) || choice.Struck == Targets::One) {
    return WriteOverEnemy(battle, choice.Slot, state.MagicDamage[choice.Slot - 1]);
  }
  for (int slot = 1; slot <= state.EnemyCount; ++slot)
    WriteOverEnemy(battle, slot, state.MagicDamage[slot - 1]);
}

void WriteHealing(BattleScreen& battle) {
  Heal(battle.state, battle.Chosen());
  NameTab(battle, kMan);
  NameTab(battle, kWoman);
}

void WriteItem(BattleScreen& battle) {
  const int hero = battle.ChosenReceiver();
  if (const BattleItem* item = UseItem(battle.state, battle.Chosen())) {
    NameTab(battle, hero);
    WriteOverHero(battle, hero, item->HP);
  }
  RefreshStatus(battle);
}

void WriteEnemyAttack(BattleScreen& battle) {
  ComputeEnemyAttack(battle.state);
  WriteOverHero(battle, StruckHero(battle.state), battle.state.EnemyDamage);
}

void WriteBreathDamage(BattleScreen& battle) {
  WriteOverHero(battle, kMan, battle.state.BreathDamage[kMan]);
  WriteOverHero(battle, kWoman, battle.state.BreathDamage[kWoman]);
}

void WriteBreath(BattleScreen& battle) {
  ComputeBreath(battle.state, Luck(battle));
  WriteBreathDamage(battle);
}

void WriteLastBreath(BattleScreen& battle) {
  ComputeLastBreath(battle.state, Luck(battle));
  WriteBreathDamage(battle);
}

// Takes a result off the enemies, and those without life off the scene.
template <auto HitBy>
void HitEnemies(BattleScreen& battle) {
  for (const int slot : HitBy(battle.state, battle.Chosen())) RedrawCells(battle, SlotCells(slot));
}

template <auto HitBy>
void HitHeroes(BattleScreen& battle) {
  for (const int hero : HitBy(battle.state)) NameTabFainted(battle, hero);
  RefreshStatus(battle);
}

// clang-format off
constexpr ActionRow kActions[] = {
    {Action::Fight,            6, 30, PlayFight,       HopFight,       WriteFight,       HitEnemies<HitByFight>},
    {Action::Spell,           26, 50, PlaySpell,       HopSpell,       WriteSpell,       HitEnemies<HitBySpell>},
    {Action::Technique,       26, 50, PlayTechnique,   HopTechnique,   WriteTechnique,   HitEnemies<HitByTechnique>},
    {Action::EnemyAttack,     16, 36, PlayEnemyAttack, HopEnemyAttack, WriteEnemyAttack, HitHeroes<HitByEnemy>},
    {Action::Heal,            26, 50, PlayHealing,     HopHealing,     WriteHealing,     nullptr},
    {Action::Item,            26, 50, PlayItem,        HopItem,        WriteItem,        nullptr},
    {Action::BossSpecial,     36, 56, PlayHellFire,    HopBreath,      WriteBreath,      HitHeroes<HitByBreath>},
    {Action::LastBossSpecial, 36, 56, PlayDeathSplit,  HopBreath,      WriteLastBreath,  HitHeroes<HitByBreath>},
};
// clang-format on

}  // namespace

const ActionRow* FindAction(int kind) {
  for (const ActionRow& row : kActions) {
    if (row.Kind == kind) return &row;
  }
  return nullptr;
}

}  // namespace orvane
