// The heroes' numbers, equipment and skills, to read only.
#pragma once

#include <memory>
#include <vector>

#include "src/core/game.h"
#include "src/ui/controls.h"
#include "src/ui/screen.h"

namespace orvane {

class ChardataScreen : public Screen {
 public:
  explicit ChardataScreen(Game& game);

  TabStrip SSTab1;
  PictureBox Picture1, Picture2;           // the faces, scaled up when the screen loads
  Frame Frame3, Frame1, Frame7, Frame2;    // the man's status, equipment, next level, techniques
  Frame Frame4, Frame5, Frame8, Frame6;    // the woman's, with spells
  CommandButton Command1, Command2;        // close
  ControlArray<Label> Label10{"Label10"};  // status values
  ControlArray<Label> Label11{"Label11"};
  ControlArray<Label> Label14{"Label14"};  // equipment
  ControlArray<Label> Label15{"Label15"};
  ControlArray<Label> Label16{"Label16"};  // experience to the next level
  ControlArray<Label> Label21{"Label21"};  // the man's skills: name, count, master value
  ControlArray<Label> Label23{"Label23"};
  ControlArray<Label> Label22{"Label22"};
  ControlArray<Label> Label24{"Label24"};  // the woman's
  ControlArray<Label> Label28{"Label28"};
  ControlArray<Label> Label27{"Label27"};

 protected:
  void OnLoad() override;
  void OnActivate(bool entered) override;
  void OnUnload() override;

 private:
  // The controls of one pane.
  struct Pane {
    Frame& Status;
    Frame& Equipment;
    Frame& NextLevel;
    Frame& Skills;
    ControlArray<Label>& StatusValues;
    ControlArray<Label>& Worn;
    ControlArray<Label>& SkillNames;
    ControlArray<Label>& SkillCounts;
    ControlArray<Label>& SkillMasters;
  };

  Pane PaneOfHero(int hero);
  void AddPane(int hero);
  void AddCaption(const Holder& holder, const Place& place, const char* text);
  void WazaChart();
  void MagicChart();
  void ShowStatus(int hero);
  void ShowSkills(int hero, const Array<Int16, 11>& known, const Array<Int16, 11>& use,
                  const Array<Int16, 11>& master, const Array<std::string, 11>& names);

  Game& game_;
  std::vector<std::unique_ptr<Label>> captions_;
};

}  // namespace orvane
