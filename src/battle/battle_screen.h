// The battle's screen. It stays in memory once made: leaving a battle only hides it.
#pragma once

#include "src/battle/rules/choice.h"
#include "src/core/game.h"
#include "src/ui/controls.h"
#include "src/ui/screen.h"

namespace orvane {

class BattleScreen : public Screen {
 public:
  explicit BattleScreen(Game& the_game);

  Game& game;
  State& state;

  // What the player has chosen: who acts, rows of the lists, from 1, and what they stand for. -1
  // for a list without a selection, and less for what is counted from 0.
  int ActingHero() const { return HeroTabs.Tab(); }
  int ChosenSkill() const { return Skills.ListIndex; }
  int ChosenTarget() const { return Targets.ListIndex; }
  int ChosenBagSlot() const { return BagItems.ListIndex - 1; }
  int ChosenReceiver() const { return Receivers.ListIndex - 1; }
  // The target's slot: its row, or that of a big enemy.
  int TargetSlot() const;
  Choice Chosen() const;

  PictureBox Scene;
  PictureBox EnemyActionPanel;
  Label EnemyActionName;
  PictureBox HeroActionPanel;
  Label HeroActionName;
  ControlArray<Label> EnemyNumbers{"Label15"};  // by slot
  ControlArray<Label> HeroNumbers{"Label16"};
  PictureBox VictoryPanel;
  Label ExperienceGained;
  ControlArray<Label> LevelMessages{"Label22"};
  ControlArray<Label> MasteryMessages{"Label25"};
  Frame CommandFrame;
  CommandButton FightButton, SpellButton, TechniqueButton, ItemButton, FleeButton;
  TabStrip HeroTabs;  // a pane for each hero; the open one acts
  ControlArray<Label> HPValues{"Label3"};
  ControlArray<Label> MPValues{"Label4"};
  ControlArray<Label> AttackValues{"Label8"};
  ControlArray<Label> DefenceValues{"Label9"};
  ControlArray<Label> SpiritValues{"Label10"};
  ControlArray<Label> LevelValues{"Label12"};
  PictureBox ManFace, WomanFace;
  ListBox Skills;  // spells or techniques
  ListBox Targets;
  ListBox BagItems;
  ListBox Receivers;  // who gets the item
  PictureBox ManSheet, WomanSheet;
  ControlArray<PictureBox> EnemySheets{"Picture6"};  // by kind
  PictureBox OpenGround, WasteGround, LairGround;
  PictureBox EffectSheet;
  Timer ActionTimer;  // a tick plays a frame of the action
  Timer MusicTimer;

 protected:
  void OnLoad() override;
  void OnActivate(bool entered) override;
  void OnUnload() override;

 private:
  void AddPane(int hero);
  void AddNumbers();
  void AddSheets();
  void TieHandlers();

  std::vector<std::unique_ptr<Label>> captions_;  // fixed texts of the panes
};

}  // namespace orvane
