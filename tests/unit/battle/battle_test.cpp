#include <gtest/gtest.h>

#include <string>

#include "src/battle/battle_screen.h"
#include "src/battle/flow/battle_setup.h"
#include "src/battle/flow/command_input.h"
#include "src/battle/flow/turn_engine.h"
#include "src/battle/rules/enemy_table.h"
#include "src/battle/rules/rewards.h"
#include "src/battle/scene/spell_animation.h"
#include "src/battle/scene/technique_animation.h"
#include "src/battle/skill_table.h"
#include "src/core/game.h"
#include "src/platform/quiet_services.h"
#include "src/screens/heroes.h"
#include "tests/unit/noted_chance.h"

namespace orvane {
namespace {

class BattleTest : public testing::Test {
 protected:
  BattleTest() {
    FillTechniqueTable(state_);
    FillSpellTable(state_);
    FillEnemyTable(state_);
    game_.stage.KeepDesigns();
    state_.EnemyKind = 3;
    state_.EnemyCount = 1;
    state_.Round = 1;
  }

  // What a frame of an action seeds and draws.
  std::string CallsOf(int kind, int frame) {
    state_.ActionKind = kind;
    state_.ActionState = frame;
    chance_.Calls.clear();
    PlayActionFrame(battle_);
    return chance_.Calls;
  }

  QuietServices quiet_;
  NotedChance chance_;
  Game game_{Services{quiet_.Sound, chance_, quiet_.Files}};
  State& state_ = game_.state;
  BattleScreen battle_{game_};
  HeroesScreen heroes_{game_};
};

TEST_F(BattleTest, SetUpSeedsOnceAndDrawsAKindInThreeRoundsOnly) {
  BattleSetUp(battle_);
  EXPECT_EQ(chance_.Calls, "sdd");
  chance_.Calls.clear();
  state_.Round = 4;
  BattleSetUp(battle_);
  EXPECT_EQ(chance_.Calls, "sd");
}

TEST_F(BattleTest, EveryCallOfTheArithmeticSeedsAndTheComputingFrameDraws) {
  battle_.Targets.ListIndex = 1;
  EXPECT_EQ(CallsOf(Action::Fight, 6), "sd");
  EXPECT_EQ(CallsOf(Action::Fight, 8), "s");
  battle_.Skills.ListIndex = 1;
  EXPECT_EQ(CallsOf(Action::Technique, 26), "sd");
  EXPECT_EQ(CallsOf(Action::Technique, 44), "s");
  EXPECT_EQ(CallsOf(Action::Spell, 26), "sdd");
  EXPECT_EQ(CallsOf(Action::Spell, 28), "s");
}

TEST_F(BattleTest, EveryFrameOfAnEnemyAttackSeedsBeforeItDraws) {
  state_.EnemyTurns = 2;
  EXPECT_EQ(CallsOf(Action::EnemyAttack, 2), "s");
  EXPECT_EQ(CallsOf(Action::EnemyAttack, 16), "sds");
  EXPECT_EQ(CallsOf(Action::EnemyAttack, 18), "ss");
  EXPECT_EQ(CallsOf(Action::EnemyAttack, 36), "s");
  state_.Round = 2;
  EXPECT_EQ(CallsOf(Action::BossSpecial, 16), "s");
  EXPECT_EQ(CallsOf(Action::BossSpecial, 36), "ssdd");
  EXPECT_EQ(CallsOf(Action::LastBossSpecial, 16), "s" + std::string(33, 'd'));
  EXPECT_EQ(CallsOf(Action::LastBossSpecial, 36), "ssdd");
}

TEST_F(BattleTest, EveryFrameOfAnItemSeeds) {
  battle_.BagItems.ListIndex = battle_.Receivers.ListIndex = 1;
  EXPECT_EQ(CallsOf(Action::Item, 2), "s");
  EXPECT_EQ(CallsOf(Action::Item, 6), "s" + std::string(12, 'd'));
  EXPECT_EQ(CallsOf(Action::Item, 26), "ss");
  EXPECT_EQ(CallsOf(Action::Item, 50), "s");
}

TEST_F(BattleTest, EveryFrameOfASpellThatScattersItsPicturesSeedsOnce) {
  state_.MagicX = state_.MagicY = 100;
  battle_.Skills.ListIndex = 3;
  EXPECT_EQ(CallsOf(Action::Heal, 8), "s" + std::string(12, 'd'));
  battle_.Skills.ListIndex = 8;
  EXPECT_EQ(CallsOf(Action::Heal, 8), "s" + std::string(24, 'd'));
  battle_.Skills.ListIndex = 10;
  EXPECT_EQ(CallsOf(Action::Spell, 8), "s" + std::string(33, 'd'));
  battle_.Skills.ListIndex = 9;
  EXPECT_EQ(CallsOf(Action::Spell, 8), "") << "this one draws nothing";
}

TEST_F(BattleTest, TheFireDrawsNothingInTheFirstRoundAndKeepsItsDamage) {
  state_.BreathDamage[0] = 77;
  EXPECT_EQ(CallsOf(Action::BossSpecial, 36), "ss");
  EXPECT_EQ(state_.BreathDamage[0], 77);
  EXPECT_EQ(battle_.HeroNumbers[0].Caption, "77");
}

TEST_F(BattleTest, TheTargetsOfASkillAreNamedByAFreshTable) {
  state_.EnemyName[3] = "another";
  state_.ActionKind = Action::Technique;
  state_.EnemyAlive[0] = state_.WazaKnown[0] = kTrue;
  state_.MP[0] = 100;
  battle_.Skills.ListIndex = 1;
  SkillChosen(battle_);
  EXPECT_EQ(state_.EnemyName[3].Trimmed(), "月の使者");
  EXPECT_EQ(battle_.Targets.List(1), state_.EnemyName[3].Full() + "(1)");
}

// The two tables of mastery counts hold the same numbers; different rules read them.
TEST_F(BattleTest, AWinTellsOfTheWomansMasteryByTheMansTable) {
  game_.stage.Show(heroes_);
  state_.MagicKnown[0] = kTrue;
  state_.BookSkill[1] = 1;
  state_.MagicUse[0] = 20;
  state_.WazaMaster[0] = 30;
  game_.stage.Unload(heroes_);
  game_.stage.Show(heroes_);
  EXPECT_FALSE(TrainByBook(state_, 1)) << "21 of 30";
  EXPECT_EQ(heroes_.WomanSkillMasters[0].Caption, "MASTER") << "20 of 20";
  state_.WazaMaster[0] = 20;
  state_.MagicMaster[0] = 30;
  game_.stage.Unload(heroes_);
  game_.stage.Show(heroes_);
  EXPECT_TRUE(TrainByBook(state_, 1)) << "22 of 20";
  EXPECT_EQ(heroes_.WomanSkillMasters[0].Caption, "/30");
}

TEST_F(BattleTest, ASpellIsMasteredByTheWomansTable) {
  battle_.Skills.ListIndex = battle_.Targets.ListIndex = 1;
  state_.Spirit[1] = 5;
  state_.MagicUse[0] = 20;
  state_.WazaMaster[0] = 1000;
  CallsOf(Action::Spell, 26);
  EXPECT_EQ(state_.MagicDamage[0], 129);
  state_.MagicMaster[0] = 30;
  CallsOf(Action::Spell, 26);
  EXPECT_EQ(state_.MagicDamage[0], 100);
}

TEST_F(BattleTest, NoActionPlaysNothing) {
  for (const int kind : {-1, 0, 99}) {
    EXPECT_EQ(CallsOf(kind, 6), "") << kind;
    ActionTick(battle_);
    EXPECT_EQ(int{state_.ActionState}, 6) << "its frames do not run";
  }
}

TEST_F(BattleTest, ARowBehindTheLastSkillHasNoPicture) {
  battle_.Scene.Picture.Refresh();
  for (auto* play : {PlayTechniqueFrame, PlaySpellFrame}) {
    const auto drawn = [&](int row) {
      battle_.Skills.ListIndex = row;
      const Surface::Pixels before = battle_.Scene.Picture.Shown();
      for (int frame = 6; frame <= 24; ++frame) play(battle_, frame);
      return before != battle_.Scene.Picture.Shown();
    };
    EXPECT_FALSE(drawn(11));
    EXPECT_EQ(battle_.HeroActionName.Caption, "");
    EXPECT_TRUE(drawn(1));
    EXPECT_NE(battle_.HeroActionName.Caption, "");
  }
}

}  // namespace
}  // namespace orvane
