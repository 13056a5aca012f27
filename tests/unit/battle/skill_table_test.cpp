#include "src/battle/skill_table.h"

#include <gtest/gtest.h>

#include "src/core/battle_state.h"

namespace orvane {
namespace {

TEST(SkillTable, HasTenRowsOfEach) {
  EXPECT_EQ(FindTechnique(0), nullptr);
  EXPECT_EQ(FindSpell(-1), nullptr);
  EXPECT_EQ(FindTechnique(11), nullptr);
  EXPECT_EQ(FindSpell(11), nullptr);
  for (int row = 1; row <= 10; ++row) {
    EXPECT_NE(FindTechnique(row)->Play, nullptr);
    EXPECT_NE(FindSpell(row)->Play, nullptr);
    EXPECT_EQ(FindTechnique(row)->At, Targets::One);
  }
}

TEST(SkillTable, FillsTheStatesTables) {
  BattleTables tables;
  FillTechniqueTable(tables);
  FillSpellTable(tables);
  for (int row = 1; row <= 10; ++row) {
    EXPECT_EQ(tables.WazaName[row - 1], FindTechnique(row)->Name);
    EXPECT_EQ(tables.WazaMP[row - 1], FindTechnique(row)->Cost);
    EXPECT_EQ(tables.WazaMaster[row - 1], FindTechnique(row)->Mastery);
    EXPECT_EQ(tables.MagicName[row - 1], FindSpell(row)->Name);
    EXPECT_EQ(tables.MagicMP[row - 1], FindSpell(row)->Cost);
    EXPECT_EQ(tables.MagicMaster[row - 1], FindSpell(row)->Mastery);
  }
  EXPECT_EQ(tables.WazaName[9], "奥義･真魔神斬");
  EXPECT_EQ(tables.MagicMP[7], 60);
  EXPECT_EQ(tables.MagicName[10], "");
}

TEST(SkillTable, SpellsAreForOneForAllOrForTheHeroes) {
  for (int row = -1; row <= 2; ++row) {
    EXPECT_EQ(TargetsOfSpell(row), Targets::One) << row;
    EXPECT_EQ(StruckBySpell(row), Targets::One) << row;
  }
  for (const int row : {4, 5, 6, 7, 9, 10}) {
    EXPECT_EQ(TargetsOfSpell(row), Targets::All) << row;
    EXPECT_EQ(StruckBySpell(row), Targets::All) << row;
  }
}

TEST(SkillTable, AHealingSpellSentOffAsAnAttackStrikesByItsPlace) {
  EXPECT_EQ(TargetsOfSpell(3), Targets::Heroes);
  EXPECT_EQ(StruckBySpell(3), Targets::One);
  EXPECT_EQ(TargetsOfSpell(8), Targets::Heroes);
  EXPECT_EQ(StruckBySpell(8), Targets::All);
}

}  // namespace
}  // namespace orvane
