// Figures stand on the ground: each has a shadow, and no holes.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <tuple>

#include "src/core/sheets.h"
#include "tests/unit/pictures/figure_checks.h"
#include "tests/unit/pictures/sheet_list.h"

namespace orvane::pictures {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr int kLargestPinhole = 3;

// The seal, which no scene draws, lies on no ground.
bool HasGround(const EnemySheet& enemy) {
  return enemy.Name != "enemy_100";
}

TEST(Figures, EnemiesHaveShadows) {
  for (const EnemySheet& enemy : EnemySheets()) {
    if (!HasGround(enemy)) continue;
    const int least = enemy.Pair.Image.Width > 64 ? 200 : 40;
    EXPECT_THAT(ShadowFaults(Sheet(enemy.Name), enemy.Pair, least), IsEmpty());
  }
}

TEST(Figures, HeroesHaveShadows) {
  for (const char* name : {"hero_man", "hero_woman"}) {
    for (const SpritePair& pair : HeroPairs()) {
      EXPECT_THAT(ShadowFaults(Sheet(name), pair, 12), IsEmpty()) << name;
    }
  }
}

TEST(Figures, HaveNoPinholes) {
  for (const EnemySheet& enemy : EnemySheets()) {
    EXPECT_THAT(PinholeFaults(Sheet(enemy.Name), enemy.Pair, kLargestPinhole), IsEmpty());
  }
  for (const char* name : {"hero_man", "hero_woman"}) {
    for (const SpritePair& pair : HeroPairs()) {
      EXPECT_THAT(PinholeFaults(Sheet(name), pair, kLargestPinhole), IsEmpty()) << name;
    }
  }
}

// Big figures are stretched to 160 by 240 at (75, 30), and 10 pixels farther left when they recoil;
// then the scene is painted anew from 72 to 216 and from 33 on. What would reach out of that while
// it recoils would stay behind.
TEST(Figures, BigOnesLeaveNothingBehindWhenTheyRecoil) {
  for (const EnemySheet& enemy : EnemySheets()) {
    const Rect& cell = enemy.Pair.Image;
    if (cell.Width == 64) continue;
    for (int y = 0; y < cell.Height; ++y) {
      for (int x = 0; x < cell.Width; ++x) {
        const Surface& sheet = Sheet(enemy.Name);
        if (!sheet.Contains(cell.Width + x, y) || sheet.At(cell.Width + x, y) != kWhite) continue;
        const int left = 65 + x * 160 / cell.Width;
        const int right = 65 + ((x + 1) * 160 - 1) / cell.Width;
        const int top = 30 + y * 240 / cell.Height;
        EXPECT_TRUE(left >= 72 && right < 216 && top >= 33)
            << enemy.Name << " at " << x << ", " << y;
      }
    }
  }
}

// The checks above find what they are there to find.

// A square of 10 by 8 pixels on a strip of shadow, in a cell of 20 by 20.
Surface SquareOnItsShadow() {
  Surface sheet(40, 20, kWhite);
  FillBox(sheet, 20, 0, 39, 19, kBlack);
  for (const auto& [y1, y2, colour] :
       {std::tuple{15, 17, Colour{kShadow}}, std::tuple{8, 15, Colour{0x804020}}}) {
    FillBox(sheet, 5, y1, 14, y2, colour);
    FillBox(sheet, 25, y1, 34, y2, kWhite);
  }
  return sheet;
}

const SpritePair kSquare{"square", {0, 0, 20, 20}, 20, 0, 80};

TEST(FigureFaults, NoneInAPlainSquare) {
  EXPECT_THAT(ShadowFaults(SquareOnItsShadow(), kSquare, 20), IsEmpty());
  EXPECT_THAT(PinholeFaults(SquareOnItsShadow(), kSquare, 4), IsEmpty());
}

TEST(FigureFaults, TooLittleShadow) {
  EXPECT_THAT(ShadowFaults(SquareOnItsShadow(), kSquare, 21),
              ElementsAre(HasSubstr("20 pixels of at least 21")));
}

TEST(FigureFaults, ShadowInThePlaceOfTheFigure) {
  Surface sheet = SquareOnItsShadow();
  FillBox(sheet, 5, 15, 5, 15, kShadow);
  EXPECT_THAT(ShadowFaults(sheet, kSquare, 20), ElementsAre(HasSubstr("only 79 pixels")));
}

TEST(FigureFaults, ColourOfTheShadowInTheFace) {
  Surface sheet = SquareOnItsShadow();
  FillBox(sheet, 7, 4, 7, 4, kShadow);
  FillBox(sheet, 27, 4, 27, 4, kWhite);
  EXPECT_THAT(ShadowFaults(sheet, kSquare, 20), ElementsAre(HasSubstr("begins in row 4")));
}

TEST(FigureFaults, FeetBelowTheShadow) {
  Surface sheet = SquareOnItsShadow();
  FillBox(sheet, 7, 18, 7, 18, 0x804020);
  FillBox(sheet, 27, 18, 27, 18, kWhite);
  EXPECT_THAT(ShadowFaults(sheet, kSquare, 20), ElementsAre(HasSubstr("stands below its shadow")));
}

TEST(FigureFaults, HolesButNotNotches) {
  Surface sheet = SquareOnItsShadow();
  const auto pierce = [&](int x, int y) {
    FillBox(sheet, x, y, x, y, kWhite);
    FillBox(sheet, 20 + x, y, 20 + x, y, kBlack);
  };
  pierce(5, 10);  // in the rim
  pierce(8, 11);
  pierce(9, 11);
  pierce(10, 12);  // touches the hole at a corner, and is one of its own
  EXPECT_THAT(PinholeFaults(sheet, kSquare, 2),
              ElementsAre(HasSubstr("2 pixels at (8, 11)"), HasSubstr("1 pixels at (10, 12)")));
  EXPECT_THAT(PinholeFaults(sheet, kSquare, 1), ElementsAre(HasSubstr("1 pixels at (10, 12)")));
}

TEST(FigureFaults, OutlinesAreAlikeWhateverTheirShadows) {
  Surface bare = SquareOnItsShadow();
  FillBox(bare, 5, 16, 14, 17, kWhite);
  FillBox(bare, 25, 16, 34, 17, kBlack);
  EXPECT_EQ(OutlineLikeness(SquareOnItsShadow(), kSquare, bare, kSquare), 1);
}

}  // namespace
}  // namespace orvane::pictures
