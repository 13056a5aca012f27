// Every cell of every sheet that the program holds.
#include "src/core/sheets.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <set>

#include "tests/unit/pictures/sheet_list.h"

namespace orvane::pictures {
namespace {

using testing::IsEmpty;

TEST(Sheets, TheListKnowsAllPicturesAndNoOthers) {
  std::set<std::string> listed;
  for (const SheetSize& sheet : AllSheets()) listed.insert(sheet.Name);
  std::set<std::string> painted;
  const std::filesystem::path folder = ORVANE_SOURCE_FOLDER "/content/pictures/sheets";
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    painted.insert(entry.path().stem().string());
  }
  EXPECT_EQ(listed, painted);
}

TEST(Sheets, HaveTheirSizesAndColours) {
  for (const SheetSize& sheet : AllSheets()) {
    EXPECT_THAT(SizeFaults(Sheet(sheet.Name), sheet.Width, sheet.Height, sheet.MostColours),
                IsEmpty())
        << sheet.Name;
  }
}

TEST(Sheets, HeroesArePairsOfPictureAndMask) {
  for (const char* name : {"hero_man", "hero_woman"}) {
    const Surface& sheet = Sheet(name);
    for (const SpritePair& pair : HeroPairs()) {
      EXPECT_THAT(PairFaults(sheet, pair), IsEmpty()) << name;
    }
    EXPECT_THAT(OutsideFaults(sheet, HeroPairs(), {}), IsEmpty()) << name;
  }
}

TEST(Sheets, HeroesWalkInFramesThatDiffer) {
  std::vector<Rect> cells;
  for (const SpritePair& pair : HeroPairs()) cells.push_back(pair.Image);
  for (const char* name : {"hero_man", "hero_woman"}) {
    EXPECT_THAT(SamenessFaults(Sheet(name), cells), IsEmpty()) << name;
  }
}

TEST(Sheets, EnemiesArePairsOfPictureAndMask) {
  const std::vector<EnemySheet> enemies = EnemySheets();
  ASSERT_EQ(enemies.size(), 20U);
  for (const EnemySheet& enemy : enemies) {
    EXPECT_THAT(PairFaults(Sheet(enemy.Name), enemy.Pair), IsEmpty());
    EXPECT_THAT(OutsideFaults(Sheet(enemy.Name), {enemy.Pair}, {}), IsEmpty()) << enemy.Name;
  }
}

TEST(Sheets, EnemiesHaveOutlinesOfTheirOwn) {
  const std::vector<EnemySheet> enemies = EnemySheets();
  for (size_t i = 0; i < enemies.size(); ++i) {
    for (size_t j = 0; j < i; ++j) {
      if (enemies[i].Pair.Image.Width != enemies[j].Pair.Image.Width) continue;
      EXPECT_LE(OutlineLikeness(Sheet(enemies[i].Name), enemies[i].Pair, Sheet(enemies[j].Name),
                                enemies[j].Pair),
                0.75)
          << enemies[i].Name << " and " << enemies[j].Name;
    }
  }
}

TEST(Sheets, EffectsArePairsOfPictureAndMask) {
  const Surface& sheet = Sheet("effects");
  ASSERT_EQ(EffectPairs().size(), 48U);
  std::vector<Rect> cells;
  for (const SpritePair& pair : EffectPairs()) {
    EXPECT_THAT(PairFaults(sheet, pair), IsEmpty());
    cells.push_back(pair.Image);
  }
  EXPECT_THAT(OutsideFaults(sheet, EffectPairs(), {}), IsEmpty());
  EXPECT_THAT(SamenessFaults(sheet, cells), IsEmpty());
}

TEST(Sheets, CreditsArePairsAndWhiteStrips) {
  for (const char* name : {"credits", "credits_en"}) {
    SCOPED_TRACE(name);
    const Surface& sheet = Sheet(name);
    for (const SpritePair& pair : CreditPairs()) EXPECT_THAT(PairFaults(sheet, pair), IsEmpty());
    for (const WhiteStrip& strip : CreditStrips())
      EXPECT_THAT(StripFaults(sheet, strip), IsEmpty());
    EXPECT_THAT(OutsideFaults(sheet, CreditPairs(), CreditStrips()), IsEmpty());
  }
}

}  // namespace
}  // namespace orvane::pictures
