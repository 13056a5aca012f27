// What the player's buttons and lists do in a battle.
#pragma once

namespace orvane {

class BattleScreen;

// The five buttons.
void CommandFight(BattleScreen& battle);
void CommandSpell(BattleScreen& battle);
void CommandTechnique(BattleScreen& battle);
void CommandItem(BattleScreen& battle);
void CommandFlee(BattleScreen& battle);

// A row of one of the four lists; row 0 is the way back.
void SkillChosen(BattleScreen& battle);
void TargetChosen(BattleScreen& battle);
void ItemChosen(BattleScreen& battle);
void ItemTargetChosen(BattleScreen& battle);

// Another hero's pane has opened.
void PaneOpened(BattleScreen& battle);

}  // namespace orvane
