#include "src/battle/rules/action_results.h"

#include <gtest/gtest.h>

#include "src/base/error.h"
#include "src/battle/rules/enemy_table.h"
#include "src/battle/rules/formation.h"
#include "src/battle/skill_table.h"
#include "tests/unit/battle/fixed_chance.h"

namespace orvane {
namespace {

class ActionResults : public testing::Test {
 protected:
  ActionResults() {
    FillTechniqueTable(state_);
    FillSpellTable(state_);
    FillEnemyTable(state_);
    state_.Round = 1;
    state_.EnemyKind = 3;  // attack 7, defence 10
    state_.EnemyCount = 3;
    state_.Level[kMan] = state_.Level[kWoman] = 10;
  }

  State state_;
  FixedChance luck_;
};

TEST_F(ActionResults, AFightTakesTheActingHerosNumbers) {
  state_.Attack[kMan] = 10;
  state_.Attack[kWoman] = 20;
  ComputeFight(state_, {.Hero = kMan}, luck_);
  EXPECT_EQ(state_.AttackDamage, 80);
  ComputeFight(state_, {.Hero = kWoman}, luck_);
  EXPECT_EQ(state_.AttackDamage, 180);
  EXPECT_EQ(luck_.Drawn, 2U);
}

TEST_F(ActionResults, ATechniqueIsTheMansSpiritAndMastery) {
  state_.Spirit[kMan] = 4;
  state_.Spirit[kWoman] = 400;
  const Choice choice{.Hero = kMan, .Skill = 1};
  ComputeTechnique(state_, choice, luck_);
  EXPECT_EQ(state_.WazaDamage, (2 + 2) * 4 - 20);
  state_.WazaUse[0] = 20;
  ComputeTechnique(state_, choice, luck_);
  EXPECT_EQ(state_.WazaDamage, 0) << "floored from 0.8 less a trifle";
  EXPECT_EQ(luck_.Drawn, 2U);
}

TEST_F(ActionResults, ASpellStrikesOneSlotWithItsSecondDraw) {
  FixedChance luck({0.99F, 0});
  state_.MagicDamage[0] = 7;
  ComputeSpell(state_, {.Hero = kWoman, .Skill = 1, .Slot = 2}, luck);
  EXPECT_EQ(state_.MagicDamage[0], 7);
  EXPECT_EQ(state_.MagicDamage[1], 80);
  EXPECT_EQ(luck.Drawn, 2U);
}

TEST_F(ActionResults, ASpellOnAllRollsForEach) {
  FixedChance luck({0, 0, 0.5F, 0.99F});
  ComputeSpell(state_, {.Hero = kWoman, .Skill = 4, .Struck = Targets::All, .Slot = -1}, luck);
  EXPECT_EQ(state_.MagicDamage[0], 48 * 17);
  EXPECT_EQ(state_.MagicDamage[1], 49 * 17);
  EXPECT_EQ(state_.MagicDamage[2], 49 * 17);
  EXPECT_EQ(state_.MagicDamage[3], 0);
  EXPECT_EQ(luck.Drawn, 4U);
}

TEST_F(ActionResults, ABigEnemyTakesTheFirstDraw) {
  state_.BossFight = kTrue;
  FixedChance luck({0.5F, 0});
  ComputeSpell(state_, {.Hero = kWoman, .Skill = 4, .Struck = Targets::All, .Slot = kBigSlot},
               luck);
  EXPECT_EQ(state_.MagicDamage[0], 0);
  EXPECT_EQ(state_.MagicDamage[kBigSlot - 1], 49 * 17);
  EXPECT_EQ(luck.Drawn, 1U);
}

TEST_F(ActionResults, WithoutAChosenSkillThereIsNoResult) {
  EXPECT_THROW(ComputeTechnique(state_, {.Skill = -1}, luck_), RunError);
  EXPECT_THROW(ComputeSpell(state_, {.Skill = 0, .Slot = 1}, luck_), RunError);
}

TEST_F(ActionResults, HealingRaisesBothAndStopsAtTheMaximum) {
  state_.MaxHP[kMan] = 80;
  state_.MaxHP[kWoman] = 90;
  state_.HP[kMan] = 75;
  state_.HP[kWoman] = 0;
  state_.Spirit[kWoman] = 2;
  state_.HeroFainted[kWoman] = kTrue;
  state_.MP[kMan] = 9;  // beyond its maximum, and left there
  Heal(state_, {.Skill = 3});
  EXPECT_EQ(state_.HealAmount[kMan], 16);
  EXPECT_EQ(state_.HealAmount[kWoman], 16);
  EXPECT_EQ(state_.HP[kMan], 80);
  EXPECT_EQ(state_.HP[kWoman], 16);
  EXPECT_EQ(state_.HeroFainted[kWoman], kFalse);
  EXPECT_EQ(state_.MP[kMan], 9);
}

TEST_F(ActionResults, ABattleItemGivesWhatItsNumberSays) {
  state_.Items[4] = 48;
  state_.HeroFainted[kWoman] = kTrue;
  const BattleItem* item = UseItem(state_, {.BagSlot = 4, .Receiver = kWoman});
  ASSERT_NE(item, nullptr);
  EXPECT_EQ(item->HP, 500);
  EXPECT_EQ(state_.HP[kWoman], 500);
  EXPECT_EQ(state_.MP[kWoman], 50);
  EXPECT_EQ(state_.HP[kMan], 0);
  EXPECT_EQ(state_.HeroFainted[kWoman], kFalse);
  EXPECT_EQ(state_.Items[4], 48) << "it leaves the bag later";
}

TEST_F(ActionResults, OtherItemsDoNothing) {
  state_.HeroFainted[kMan] = kTrue;
  for (const int number : {46, 50, kNoItem}) {
    state_.Items[0] = number;
    EXPECT_EQ(UseItem(state_, {.BagSlot = 0, .Receiver = kMan}), nullptr);
  }
  EXPECT_EQ(state_.HP[kMan], 0);
  EXPECT_EQ(state_.HeroFainted[kMan], kTrue);
}

TEST_F(ActionResults, AnEnemyStrikesTheHeroOfItsRoll) {
  state_.Defence[kMan] = 4;
  state_.EnemyRoll = 5;
  EXPECT_EQ(StruckHero(state_), kWoman);
  ComputeEnemyAttack(state_);
  EXPECT_EQ(state_.EnemyDamage, 19);
  state_.EnemyRoll = 6;
  EXPECT_EQ(StruckHero(state_), kMan);
  ComputeEnemyAttack(state_);
  EXPECT_EQ(state_.EnemyDamage, 18);
}

TEST_F(ActionResults, ARoundsDragonAttacksWithItsOwnRow) {
  state_.BossFight = kTrue;
  state_.Round = 2;
  ComputeEnemyAttack(state_);
  EXPECT_EQ(state_.EnemyKind, 1);
  EXPECT_EQ(state_.EnemyDamage, 300);
}

TEST_F(ActionResults, TheBreathOfEachRoundHasItsRange) {
  constexpr float near_one = 0.99999994F;
  state_.BreathDamage[kMan] = 77;
  FixedChance luck({0, near_one, 0, near_one, 0, near_one});
  ComputeBreath(state_, luck);
  EXPECT_EQ(state_.BreathDamage[kMan], 77) << "none in the first round";
  EXPECT_EQ(luck.Drawn, 0U);
  state_.Round = 2;
  ComputeBreath(state_, luck);
  EXPECT_EQ(state_.BreathDamage[kMan], 350);
  EXPECT_EQ(state_.BreathDamage[kWoman], 389);
  state_.Round = 3;
  ComputeBreath(state_, luck);
  EXPECT_EQ(state_.BreathDamage[kMan], 850);
  EXPECT_EQ(state_.BreathDamage[kWoman], 799);
  ComputeLastBreath(state_, luck);
  EXPECT_EQ(state_.BreathDamage[kMan], 1200);
  EXPECT_EQ(state_.BreathDamage[kWoman], 1199);
}

}  // namespace
}  // namespace orvane
