// The battle's screen. It stays in memory once made: leaving a battle only hides it.
#pragma once

#include "src/core/game.h"
#include "src/ui/controls.h"
#include "src/ui/screen.h"

namespace orvane {

class BattleScreen : public Screen {
 public:
  explicit BattleScreen(Game& the_game);

  Game& game;
  State& state;

  PictureBox Scene;             // the scene
  PictureBox EnemyActionPanel;  // the enemy's action name
  Label EnemyActionName;
  PictureBox HeroActionPanel;  // the hero's action name
  Label HeroActionName;
  ControlArray<Label> EnemyNumbers{"Label15"};  // numbers on enemies, by slot
  ControlArray<Label> HeroNumbers{"Label16"};   // numbers on heroes
  PictureBox VictoryPanel;                      // the victory panel
  Label ExperienceGained;
  ControlArray<Label> LevelMessages{"Label22"};    // level messages
  ControlArray<Label> MasteryMessages{"Label25"};  // mastery messages
  Frame CommandFrame;
  CommandButton FightButton, SpellButton, TechniqueButton, ItemButton, FleeButton;
  TabStrip HeroTabs;                       // a pane for each hero; the open one acts
  ControlArray<Label> HPValues{"Label3"};  // HP, MP, attack, defence, spirit, level
  ControlArray<Label> MPValues{"Label4"};
  ControlArray<Label> AttackValues{"Label8"};
  ControlArray<Label> DefenceValues{"Label9"};
  ControlArray<Label> SpiritValues{"Label10"};
  ControlArray<Label> LevelValues{"Label12"};
  PictureBox ManFace, WomanFace;                     // the heroes' faces
  ListBox Skills;                                    // spells or techniques
  ListBox Targets;                                   // targets
  ListBox BagItems;                                  // items
  ListBox Receivers;                                 // who gets the item
  PictureBox ManSheet, WomanSheet;                   // sheets: the heroes,
  ControlArray<PictureBox> EnemySheets{"Picture6"};  // the enemies by kind,
  PictureBox OpenGround, WasteGround, LairGround;    // the grounds,
  PictureBox EffectSheet;                            // the effects
  Timer ActionTimer;                                 // the action
  Timer MusicTimer;                                  // the music

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
