// The fixed captions: labels without a name, which no script can reach.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>

#include "src/battle/battle_screen.h"
#include "src/core/game.h"
#include "src/platform/quiet_services.h"
#include "src/screens/equipment.h"
#include "src/screens/heroes.h"

namespace orvane {
namespace {

using testing::ElementsAre;

// The captions that a control holds, on one of its panes if need be, in their order: "text left,top
// width x height".
std::vector<std::string> CaptionsIn(const Control& holder, int pane = -1) {
  std::vector<std::string> captions;
  for (const Control* control : holder.Owner().Controls()) {
    if (control->Parent() != &holder || control->Pane() != pane || !control->Name().empty()) {
      continue;
    }
    const auto& label = dynamic_cast<const Label&>(*control);
    const auto number = [](double pixels) { return std::to_string(static_cast<int>(pixels)); };
    captions.push_back(label.Caption);
    captions.back().append(" ").append(number(label.At.Left));
    captions.back().append(",").append(number(label.At.Top));
    captions.back().append(" ").append(number(label.At.Width));
    captions.back().append("x").append(number(label.At.Height));
  }
  return captions;
}

class CaptionsTest : public testing::Test {
 protected:
  QuietServices quiet_;
  Game game_{quiet_.All()};
  HeroesScreen heroes_{game_};
  EquipmentScreen equipment_{game_};
  BattleScreen battle_{game_};
};

// The panes on which these controls stand, each once.
std::set<int> PanesOf(const Screen& screen, std::initializer_list<const char*> names) {
  std::set<int> panes;
  for (const char* name : names) panes.insert(screen.Find(name)->Pane());
  return panes;
}

TEST_F(CaptionsTest, BothHeroesNumbersAreCaptionedAlike) {
  for (const Frame* frame : {&heroes_.ManStatus, &heroes_.WomanStatus}) {
    EXPECT_THAT(
        CaptionsIn(*frame),
        ElementsAre("LV ： 8,24 55x16", "HP ： 8,40 55x16", "MP ： 8,56 55x16",
                    "MAXHP ： 8,72 55x16", "MAXMP ： 8,88 55x16", "攻撃力 ： 8,104 55x16",
                    "守備力 ： 8,120 55x16", "精神力 ： 8,136 55x16", "経験値 ： 8,152 55x16"));
  }
}

TEST_F(CaptionsTest, EachHeroWearsAWeaponArmourAndABook) {
  for (const Frame* frame : {&heroes_.ManEquipment, &heroes_.WomanEquipment}) {
    EXPECT_THAT(CaptionsIn(*frame),
                ElementsAre("武器 ： 8,16 39x17", "防具 ： 8,36 39x17", "本  ： 8,56 39x17"));
  }
}

TEST_F(CaptionsTest, ThePointsToTheNextLevelAreCalledSo) {
  EXPECT_THAT(CaptionsIn(heroes_.ManNextLevel), ElementsAre("ポイント 152,16 57x17"));
  EXPECT_THAT(CaptionsIn(heroes_.WomanNextLevel), ElementsAre("ポイント 152,16 57x17"));
}

TEST_F(CaptionsTest, TheManHasTechniquesAndTheWomanSpells) {
  EXPECT_THAT(CaptionsIn(heroes_.ManTechniques),
              ElementsAre("技名 32,16 65x17", "熟練度 136,16 57x17"));
  EXPECT_THAT(CaptionsIn(heroes_.WomanSpells),
              ElementsAre("魔法名 32,16 65x17", "熟練度 136,16 57x17"));
}

TEST_F(CaptionsTest, TheNumbersOfSkillsStandAtTheRight) {
  for (int skill = 0; skill < 10; ++skill) {
    EXPECT_EQ(heroes_.ManSkillNames[skill].Alignment, Align::Left);
    EXPECT_EQ(heroes_.ManSkillCounts[skill].Alignment, Align::Right);
    EXPECT_EQ(heroes_.ManSkillMasters[skill].Alignment, Align::Right);
    EXPECT_EQ(heroes_.WomanSkillNames[skill].Alignment, Align::Left);
    EXPECT_EQ(heroes_.WomanSkillCounts[skill].Alignment, Align::Right);
    EXPECT_EQ(heroes_.WomanSkillMasters[skill].Alignment, Align::Right);
  }
}

TEST_F(CaptionsTest, EachHeroHasAPane) {
  EXPECT_THAT(PanesOf(heroes_, {"Picture1", "Frame3", "Frame1", "Frame7", "Frame2", "Command1"}),
              ElementsAre(0));
  EXPECT_THAT(PanesOf(heroes_, {"Picture2", "Frame4", "Frame5", "Frame8", "Frame6", "Command2"}),
              ElementsAre(1));
  EXPECT_THAT(PanesOf(equipment_, {"Picture1", "Command1", "Command2", "Command5", "Label1(0)",
                                   "Label2(1)", "Label3(2)", "Label4(0)"}),
              ElementsAre(0));
  EXPECT_THAT(PanesOf(equipment_, {"Picture2", "Command3", "Command4", "Command6", "Label6(0)",
                                   "Label7(1)", "Label8(2)", "Label9(0)"}),
              ElementsAre(1));
  EXPECT_THAT(PanesOf(battle_, {"Picture4", "Label3(0)", "Label4(0)", "Label8(0)", "Label9(0)",
                                "Label10(0)", "Label12(0)"}),
              ElementsAre(0));
  EXPECT_THAT(PanesOf(battle_, {"Picture5", "Label3(1)", "Label4(1)", "Label8(1)", "Label9(1)",
                                "Label10(1)", "Label12(1)"}),
              ElementsAre(1));
}

TEST_F(CaptionsTest, BothPanesOfABattleAreCaptionedAlike) {
  for (const int pane : {0, 1}) {
    EXPECT_THAT(CaptionsIn(battle_.HeroTabs, pane),
                ElementsAre("HP ： 8,40 41x17", "MP ： 8,64 41x17", "攻撃 ： 128,40 49x17",
                            "防御 ： 128,56 49x17", "精神 ： 128,72 49x17", "LV ： 224,80 25x17"));
  }
}

}  // namespace
}  // namespace orvane
