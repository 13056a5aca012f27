// The heroes' numbers, equipment and skills, to read only.
#pragma once

#include <memory>
#include <vector>

#include "src/core/game.h"
#include "src/ui/controls.h"
#include "src/ui/screen.h"

namespace orvane {

class HeroesScreen : public Screen {
 public:
  explicit HeroesScreen(Game& game);

  TabStrip HeroTabs;
  PictureBox ManFace, WomanFace;  // scaled up when the screen loads
  Frame ManStatus, ManEquipment, ManNextLevel, ManTechniques;
  Frame WomanStatus, WomanEquipment, WomanNextLevel, WomanSpells;
  CommandButton ManClose, WomanClose;
  ControlArray<Label> ManStatusValues{"Label10"};
  ControlArray<Label> WomanStatusValues{"Label11"};
  ControlArray<Label> ManWorn{"Label14"};
  ControlArray<Label> WomanWorn{"Label15"};
  ControlArray<Label> ExperienceToNext{"Label16"};
  ControlArray<Label> ManSkillNames{"Label21"};
  ControlArray<Label> ManSkillCounts{"Label23"};
  ControlArray<Label> ManSkillMasters{"Label22"};
  ControlArray<Label> WomanSkillNames{"Label24"};
  ControlArray<Label> WomanSkillCounts{"Label28"};
  ControlArray<Label> WomanSkillMasters{"Label27"};

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
  void ShowTechniques();
  void ShowSpells();
  void ShowStatus(int hero);
  void ShowSkills(int hero, const Array<Int16, 11>& known, const Array<Int16, 11>& use,
                  const Array<Int16, 11>& master, const Array<std::string, 11>& names);

  Game& game_;
  std::vector<std::unique_ptr<Label>> captions_;
};

}  // namespace orvane
