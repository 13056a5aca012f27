#include "src/battle/scene/status_panes.h"

#include <string>

#include "src/battle/battle_screen.h"
#include "src/core/hero_numbers.h"

namespace orvane {

void RefreshStatus(BattleScreen& battle) {
  State& state = battle.state;
  Settle(state);
  for (int hero = 0; hero < 2; ++hero) {
    battle.LevelValues[hero].Caption = std::to_string(state.Level[hero]);
    battle.HPValues[hero].Caption = Gauge(state.HP[hero], state.MaxHP[hero]);
    battle.MPValues[hero].Caption = Gauge(state.MP[hero], state.MaxMP[hero]);
    battle.AttackValues[hero].Caption = std::to_string(state.Attack[hero]);
    battle.DefenceValues[hero].Caption = std::to_string(state.Defence[hero]);
    battle.SpiritValues[hero].Caption = std::to_string(state.Spirit[hero]);
  }
}

void NameTab(BattleScreen& battle, int hero) {
  battle.HeroTabs.SetTabCaption(hero, battle.state.HeroName[hero].Trimmed());
}

void NameTabFainted(BattleScreen& battle, int hero) {
  battle.HeroTabs.SetTabCaption(hero, "気絶");
}

}  // namespace orvane
