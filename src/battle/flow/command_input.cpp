#include "src/battle/flow/command_input.h"

#include <string>

#include "src/battle/battle_screen.h"
#include "src/battle/flow/battle_setup.h"
#include "src/battle/rules/battle_items.h"
#include "src/battle/rules/enemy_table.h"
#include "src/battle/rules/formation.h"
#include "src/battle/rules/rewards.h"
#include "src/battle/skill_table.h"

namespace orvane {
namespace {

constexpr const char* kWayBack = "キャンセル";
constexpr const char* kDeadRow = "×";
constexpr int kSkills = 10;

void CommandLock(BattleScreen& battle, int tab) {
  battle.FightButton.Enabled = false;
  battle.ItemButton.Enabled = false;
  battle.HeroTabs.SetTabEnabled(tab, false);
  battle.HeroTabs.SetTabEnabled(tab ^ 1, false);
  battle.state.HeroBusy[tab] = kTrue;
}

void CommandUnlock(BattleScreen& battle) {
  const int tab = battle.ActingHero();
  battle.FightButton.Enabled = true;
  battle.ItemButton.Enabled = true;
  (tab == 0 ? battle.TechniqueButton : battle.SpellButton).Enabled = true;
  battle.state.HeroBusy[tab] = kFalse;
  battle.Skills.Clear();
  battle.HeroTabs.SetTabEnabled(tab, true);
}

void FaintedTabOff(BattleScreen& battle) {
  for (int hero = 0; hero < 2; ++hero) {
    if (battle.state.HeroFainted[hero] != kTrue) continue;
    battle.HeroTabs.SetTabEnabled(hero, false);
    return;
  }
}

bool OtherIsFree(const BattleScreen& battle) {
  return battle.state.HeroBusy[battle.ActingHero() ^ 1] == kFalse;
}

void OpenOtherTab(BattleScreen& battle) {
  battle.HeroTabs.SetTabEnabled(battle.ActingHero() ^ 1, true);
}

// A choice is complete: its action plays.
void Commit(BattleScreen& battle, ListBox& open_list) {
  battle.state.FieldFrame = 0;
  battle.state.HeroesActed += 1;
  battle.ActionTimer.SetEnabled(true);
  open_list.Visible = false;
}

// Row 0 is the way back, rows 1 to 4 are the slots; against a big enemy there is only row 1.
void FillTargets(BattleScreen& battle) {
  const State& state = battle.state;
  ListBox& list = battle.Targets;
  list.SetRow(0, kWayBack);
  if (IsBigFight(state)) return list.SetRow(1, state.EnemyName[EnemyRow(state)].Full());
  for (int slot = 1; slot <= state.EnemyCount; ++slot) {
    const bool alive = state.EnemyAlive[slot - 1] == kTrue;
    list.SetRow(slot,
                alive ? state.EnemyName[state.EnemyKind].Full() + "(" + std::to_string(slot) + ")"
                      : std::string(kDeadRow));
  }
}

void TargetListOpen(BattleScreen& battle) {
  battle.Skills.Visible = false;
  battle.Targets.Visible = true;
  FillEnemyTable(battle.state);
  FillTargets(battle);
}

void OpenSkillList(BattleScreen& battle, CommandButton& button, const Array<Int16, 11>& known,
                   const Array<std::string, 11>& names, const Array<Int16, 11>& costs) {
  battle.Skills.Visible = true;
  battle.Skills.SetRow(0, kWayBack);
  CommandLock(battle, battle.ActingHero());
  button.Enabled = false;
  for (int row = 1; row <= kSkills; ++row) {
    const bool learned = known[row - 1] == kTrue;
    battle.Skills.SetRow(
        row, learned ? names[row - 1] + "   (MP消費:" + std::to_string(costs[row - 1]) + ")"
                     : std::string("未修得"));
  }
}

// Says why a skill cannot be used, if so.
bool Refused(BattleScreen& battle, int known, int mp, int cost) {
  if (known != kTrue) {
    Warn(battle.game, "未修得です");
    return true;
  }
  if (mp < cost) {
    Warn(battle.game, "MPが足りません");
    return true;
  }
  return false;
}

void TechniqueChosen(BattleScreen& battle, int row) {
  const State& state = battle.state;
  if (Refused(battle, state.WazaKnown[row - 1], state.MP[0], state.WazaMP[row - 1])) return;
  TargetListOpen(battle);
}

void SpellChosen(BattleScreen& battle, int row) {
  State& state = battle.state;
  if (Refused(battle, state.MagicKnown[row - 1], state.MP[1], state.MagicMP[row - 1])) return;
  const Targets targets = TargetsOfSpell(row);
  if (targets == Targets::One) return TargetListOpen(battle);
  if (targets == Targets::Heroes) state.ActionKind = Action::Heal;
  Commit(battle, battle.Skills);
}

}  // namespace

void CommandFight(BattleScreen& battle) {
  battle.Targets.Visible = true;
  battle.state.ActionKind = Action::Fight;
  CommandLock(battle, battle.ActingHero());
  battle.SpellButton.Enabled = false;
  battle.TechniqueButton.Enabled = false;
  FillTargets(battle);
}

void CommandSpell(BattleScreen& battle) {
  const State& state = battle.state;
  battle.state.ActionKind = Action::Spell;
  OpenSkillList(battle, battle.SpellButton, state.MagicKnown, state.MagicName, state.MagicMP);
}

void CommandTechnique(BattleScreen& battle) {
  const State& state = battle.state;
  battle.state.ActionKind = Action::Technique;
  OpenSkillList(battle, battle.TechniqueButton, state.WazaKnown, state.WazaName, state.WazaMP);
}

void CommandItem(BattleScreen& battle) {
  State& state = battle.state;
  CommandLock(battle, battle.ActingHero());
  battle.TechniqueButton.Enabled = false;
  battle.BagItems.Clear();
  battle.BagItems.Visible = true;
  battle.BagItems.AddItem(kWayBack);
  for (int slot = 0; slot < kBagSize; ++slot) {
    ReadItem(battle.game, state.Items[slot]);
    battle.BagItems.AddItem(state.Items[slot] == kNoItem ? std::string("なし")
                                                         : state.ItemRec.Name.Full());
  }
}

void SkillChosen(BattleScreen& battle) {
  const int row = battle.ChosenSkill();
  if (row == 0) {
    CommandUnlock(battle);
    if (OtherIsFree(battle)) OpenOtherTab(battle);
    battle.Skills.Visible = false;
    FaintedTabOff(battle);
  } else if (battle.state.ActionKind == Action::Technique) {
    TechniqueChosen(battle, row);
  } else if (battle.state.ActionKind == Action::Spell) {
    SpellChosen(battle, row);
  }
}

void TargetChosen(BattleScreen& battle) {
  if (battle.ChosenTarget() == 0) {
    CommandUnlock(battle);
    battle.Targets.Visible = false;
    battle.Targets.Clear();
    battle.Skills.Clear();
    if (OtherIsFree(battle)) OpenOtherTab(battle);
    FaintedTabOff(battle);
  } else if (battle.Targets.Text() == kDeadRow) {
    Warn(battle.game, "その敵はすでに死んでいる");
  } else {
    Commit(battle, battle.Targets);
  }
}

void ItemChosen(BattleScreen& battle) {
  const State& state = battle.state;
  const int slot = battle.ChosenBagSlot();
  if (battle.BagItems.ListIndex == 0) {
    CommandUnlock(battle);
    if (OtherIsFree(battle)) {
      OpenOtherTab(battle);
      battle.Targets.Visible = false;
    }
    FaintedTabOff(battle);
    battle.BagItems.Visible = false;
    battle.BagItems.Clear();
    return;
  }
  if (state.Items[slot] == kNoItem || state.Items[slot] < kFirstBattleItem) {
    return Warn(battle.game, "それは使えません");
  }
  battle.Receivers.Clear();
  battle.Receivers.AddItem(kWayBack);
  battle.Receivers.AddItem(state.HeroName[0].Trimmed());
  battle.Receivers.AddItem(state.HeroName[1].Trimmed());
  battle.Receivers.Visible = true;
  battle.BagItems.Visible = false;
}

void ItemTargetChosen(BattleScreen& battle) {
  if (battle.Receivers.ListIndex == 0) {
    battle.Receivers.Visible = false;
    battle.BagItems.Visible = true;
    battle.Receivers.Clear();
    return;
  }
  battle.state.ActionKind = Action::Item;
  Commit(battle, battle.Receivers);
}

void CommandFlee(BattleScreen& battle) {
  State& state = battle.state;
  battle.ActionTimer.SetEnabled(false);
  for (int hero = 0; hero < 2; ++hero) {
    if (state.HeroFainted[hero] != kTrue) continue;
    StandUp(state, hero);
  }
  LeaveBattle(battle);
}

void PaneOpened(BattleScreen& battle) {
  const bool first = battle.ActingHero() == 0;
  battle.SpellButton.Enabled = !first;
  battle.TechniqueButton.Enabled = first;
}

}  // namespace orvane
