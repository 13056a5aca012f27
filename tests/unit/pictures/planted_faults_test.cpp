// The checks of sprites find what they are there to find: each fault is planted in a copy of a
// sheet that is free of it.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "src/core/sheets.h"
#include "tests/unit/pictures/sheet_list.h"

namespace orvane::pictures {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

const SpritePair kSpider{"spider", {0, 0, 64, 50}, 64, 0, 700};

void Dot(Surface& sheet, int x, int y, Colour colour) {
  FillBox(sheet, x, y, x, y, colour);
}

class PlantedFaults : public testing::Test {
 protected:
  PlantedFaults() : spider(Sheet("enemy_06")) {
    // A place of the ground and one of the figure, to break.
    EXPECT_EQ(spider.At(64 + 2, 2), kBlack);
    for (int x = 0; x < 64; ++x) {
      if (spider.At(64 + x, 25) == kWhite) figure_x = x;
    }
    EXPECT_GT(figure_x, 0);
  }

  Surface spider;
  int figure_x = 0;
};

TEST_F(PlantedFaults, GroundOfThePictureNotWhite) {
  Dot(spider, 2, 2, 0xFEFFFF);
  EXPECT_THAT(PairFaults(spider, kSpider),
              ElementsAre(HasSubstr("1 picture pixels not white where the mask is black, the first "
                                    "at (2, 2)")));
}

TEST_F(PlantedFaults, GroundOfTheMaskNotBlack) {
  Dot(spider, 64 + 2, 2, 0x000001);
  EXPECT_THAT(PairFaults(spider, kSpider), ElementsAre(HasSubstr("neither black nor white")));
}

TEST_F(PlantedFaults, FigureOfTheMaskNotWhite) {
  Dot(spider, 64 + figure_x, 25, 0xFFFFFE);
  EXPECT_THAT(PairFaults(spider, kSpider), ElementsAre(HasSubstr("neither black nor white")));
}

TEST_F(PlantedFaults, HoleInTheMask) {
  Dot(spider, figure_x, 25, 0x804020);
  Dot(spider, 64 + figure_x, 25, kBlack);
  EXPECT_THAT(PairFaults(spider, kSpider), ElementsAre(HasSubstr("where the mask is black")));
}

TEST_F(PlantedFaults, FigureAtEachEdge) {
  for (const auto& [x, y] : {std::pair{0, 20}, {63, 20}, {20, 0}, {20, 49}}) {
    Surface broken = spider;
    Dot(broken, 64 + x, y, kWhite);
    EXPECT_THAT(PairFaults(broken, kSpider), ElementsAre(HasSubstr("at the cell's edge")));
  }
}

TEST_F(PlantedFaults, EmptyMaskOrPicture) {
  Surface no_picture = spider;
  FillBox(no_picture, 0, 0, 63, 49, kWhite);
  EXPECT_THAT(PairFaults(no_picture, kSpider),
              ElementsAre(HasSubstr("only 0 coloured pixels in the picture")));
  FillBox(spider, 0, 0, 63, 49, kWhite);
  FillBox(spider, 64, 0, 127, 49, kBlack);
  EXPECT_THAT(PairFaults(spider, kSpider),
              ElementsAre(HasSubstr("only 0 white pixels in the mask"),
                          HasSubstr("only 0 coloured pixels in the picture")));
}

TEST_F(PlantedFaults, PictureWhereAClippedSheetHasNoMask) {
  Surface fiend = Sheet("enemy_07");  // its mask lacks the last column
  const SpritePair pair{"fiend", {0, 0, 64, 64}, 64, 0, 700, false};
  EXPECT_THAT(PairFaults(fiend, pair), IsEmpty());
  Dot(fiend, 63, 30, 0x804020);
  EXPECT_THAT(PairFaults(fiend, pair), ElementsAre(HasSubstr("where the mask is black")));
}

TEST_F(PlantedFaults, PictureBeyondTheSheet) {
  EXPECT_THAT(PairFaults(spider, {"spider", {0, 0, 64, 64}, 64, 0}),
              ElementsAre(HasSubstr("outside of the sheet")));
  EXPECT_THAT(StripFaults(spider, {"strip", {0, 32, 200, 32}}),
              ElementsAre(HasSubstr("outside of the sheet")));
}

TEST_F(PlantedFaults, SizeAndColours) {
  EXPECT_THAT(SizeFaults(spider, 128, 64, 0), ElementsAre(HasSubstr("128 by 50, not 128 by 64")));
  EXPECT_THAT(SizeFaults(spider, 127, 50, 0), ElementsAre(HasSubstr("128 by 50, not 127 by 50")));
  Surface many(257, 2, kWhite);
  for (int x = 0; x < 256; ++x) Dot(many, x, 0, static_cast<Colour>(x));
  EXPECT_EQ(ColourCount(many), 257);
  EXPECT_THAT(SizeFaults(many, 257, 2, 256), ElementsAre(HasSubstr("257 colours")));
  EXPECT_THAT(SizeFaults(many, 257, 2, 257), IsEmpty());
  EXPECT_THAT(SizeFaults(Surface(8, 8, kWhite), 8, 8, 0), ElementsAre(HasSubstr("one colour")));
}

TEST_F(PlantedFaults, StripWithAGreyPixelAnEdgeOrNothing) {
  const Surface& credits = Sheet("credits");
  const WhiteStrip strip{"strip", {0, 192, 200, 32}, 400};
  Surface grey = credits;
  Dot(grey, 3, 195, 0x808080);
  EXPECT_THAT(StripFaults(grey, strip), ElementsAre(HasSubstr("neither black nor white")));
  Surface edge = credits;
  Dot(edge, 0, 195, kWhite);
  EXPECT_THAT(StripFaults(edge, strip), ElementsAre(HasSubstr("at the cell's edge")));
  Surface bare = credits;
  FillBox(bare, 0, 192, 199, 223, kBlack);
  EXPECT_THAT(StripFaults(bare, strip), ElementsAre(HasSubstr("only 0 white pixels")));
}

TEST_F(PlantedFaults, PixelsOutsideOfAllCells) {
  Surface bat = Sheet("enemy_12");  // a column wider than its two cells
  const SpritePair pair{"bat", {0, 0, 64, 64}, 64, 0};
  Dot(bat, 128, 10, kWhite);
  EXPECT_THAT(OutsideFaults(bat, {pair}, {}), ElementsAre(HasSubstr("outside of all cells")));
}

TEST_F(PlantedFaults, CellsThatOverlap) {
  EXPECT_THAT(OutsideFaults(spider, {kSpider, kSpider}, {}),
              ElementsAre(HasSubstr("pixels in two cells")));
}

TEST_F(PlantedFaults, FramesThatAreAlike) {
  Surface man = Sheet("hero_man");
  const Surface original = man;
  BitBlt(man, 24, 32, 24, 32, original, 0, 32, Blit::Copy);
  EXPECT_THAT(SamenessFaults(man, {{0, 32, 24, 32}, {24, 32, 24, 32}, {48, 32, 24, 32}}),
              ElementsAre("cells 0 and 1 are alike"));
}

TEST_F(PlantedFaults, OutlinesThatAreAlike) {
  EXPECT_EQ(OutlineLikeness(spider, kSpider, spider, kSpider), 1);
  Surface left(16, 4, kBlack);
  FillBox(left, 8, 0, 11, 3, kWhite);
  Surface right(16, 4, kBlack);
  FillBox(right, 10, 0, 13, 3, kWhite);
  const SpritePair pair{"box", {0, 0, 8, 4}, 8, 0};
  EXPECT_DOUBLE_EQ(OutlineLikeness(left, pair, right, pair), 1.0 / 3);
}

}  // namespace
}  // namespace orvane::pictures
