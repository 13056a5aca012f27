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

  PictureBox Picture1;   // the scene
  PictureBox Picture13;  // the enemy's action name
  Label Label24;
  PictureBox Picture9;  // the hero's action name
  Label Label20;
  ControlArray<Label> Label15{"Label15"};  // numbers on enemies, by slot
  ControlArray<Label> Label16{"Label16"};  // numbers on heroes
  PictureBox Picture10;                    // the victory panel
  Label Label21;
  ControlArray<Label> Label22{"Label22"};  // level messages
  ControlArray<Label> Label25{"Label25"};  // mastery messages
  Frame Frame1;
  CommandButton Command1, Command2, Command3, Command4, Command5;
  TabStrip SSTab1;                       // a pane for each hero; the open one acts
  ControlArray<Label> Label3{"Label3"};  // HP, MP, attack, defence, spirit, level
  ControlArray<Label> Label4{"Label4"};
  ControlArray<Label> Label8{"Label8"};
  ControlArray<Label> Label9{"Label9"};
  ControlArray<Label> Label10{"Label10"};
  ControlArray<Label> Label12{"Label12"};
  PictureBox Picture4, Picture5;                  // the heroes' faces
  ListBox List1;                                  // spells or techniques
  ListBox List2;                                  // targets
  ListBox List3;                                  // items
  ListBox List4;                                  // who gets the item
  PictureBox Picture2, Picture3;                  // sheets: the heroes,
  ControlArray<PictureBox> Picture6{"Picture6"};  // the enemies by kind,
  PictureBox Picture7, Picture11, Picture12;      // the grounds,
  PictureBox Picture8;                            // the effects
  Timer Timer1;                                   // the action
  Timer Timer2;                                   // the music

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
