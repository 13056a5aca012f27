// The heroes' panes below the scene.
#pragma once

namespace orvane {

class BattleScreen;

// Settles the heroes' numbers and writes both panes.
void RefreshStatus(BattleScreen& battle);

// Writes a hero's name into the caption of his tab, or that he has fainted.
void NameTab(BattleScreen& battle, int hero);
void NameTabFainted(BattleScreen& battle, int hero);

}  // namespace orvane
