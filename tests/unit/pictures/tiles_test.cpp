// The tile sheet tells what can be walked on, and the hero stands out from it.
#include "src/field/tiles.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "src/core/sheets.h"
#include "tests/unit/pictures/sheet_list.h"
#include "tests/unit/pictures/tile_checks.h"

namespace orvane::pictures {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

// Two tiles that lie side by side on the maps, and the least difference of their mean greys: a
// walkable ground against what blocks the way there. Measured differences are a fifth larger.
const std::vector<TilePair> kNeighbours = {
    {"grass and water", 7, 182, 40},
    {"grass and woods", 7, 119, 36},
    {"grass and a mountain", 7, 194, 38},
    {"grass and a bush", 7, 49, 22},
    {"grass and the plateau's lip", 7, 158, 16},
    {"path and woods", 95, 119, 70},
    {"path and cliff", 95, 188, 60},
    {"forest floor and woods", 107, 119, 16},
    {"sand and sea", 25, 185, 100},
    {"sandbank and water", 29, 182, 100},
    {"bridge and water", 32, 182, 16},
    {"marsh and pool", 20, 50, 40},
    {"moss and pool", 21, 51, 28},
    {"rock floor and mountain", 175, 194, 70},
    {"rock floor and cliff", 175, 188, 56},
    {"waste and dark crag", 13, 197, 90},
    {"waste and lava", 13, 202, 28},
    {"paving and wall", 110, 83, 36},
    {"boards and wall", 206, 56, 65},
    {"boards and bookshelf", 206, 58, 60},
    {"carpet and dark wall", 209, 55, 75},
    {"floor of the last stage and void", 235, 205, 140},
};

// Walkable things, not grounds: bridges, chest, book chest and doors. They have dark seams of their
// own, and the hero only crosses them.
const std::set<int> kThings = {31, 32, 33, 35, 36, 43, 44, 47, 73, 74, 103, 104, 116, 131};

// The poorest showing of any cell of a hero on a tile.
Standout Poorest(const Surface& hero, const Surface& tiles, int code) {
  Standout poorest{441, 255, 0};
  for (const SpritePair& pair : HeroPairs()) {
    const Standout one = StandoutOn(hero, pair.Image, tiles, code);
    poorest.MeanColour = std::min(poorest.MeanColour, one.MeanColour);
    poorest.MeanGrey = std::min(poorest.MeanGrey, one.MeanGrey);
    poorest.ShareLost = std::max(poorest.ShareLost, one.ShareLost);
  }
  return poorest;
}

TEST(Tiles, NoneIsEmpty) {
  const Surface& tiles = Sheet("tiles");
  for (int code = 1; code <= kTileCodes; ++code) {
    const Rect cell = TileCell(code);
    Surface tile(kTileSize, kTileSize);
    BitBlt(tile, 0, 0, kTileSize, kTileSize, tiles, cell.X, cell.Y, Blit::Copy);
    EXPECT_GE(ColourCount(tile), 2) << "code " << code;
  }
}

TEST(Tiles, OnlyThreeMiddlesAreThereTwice) {
  std::vector<Rect> cells{{0, 0, 0, 0}};  // so that a cell's place is its code
  for (int code = 1; code <= kTileCodes; ++code) cells.push_back(TileCell(code));
  EXPECT_THAT(SamenessFaults(Sheet("tiles"), cells),
              ElementsAre("cells 25 and 98 are alike", "cells 182 and 185 are alike",
                          "cells 13 and 191 are alike"))
      << "middles of sand, of water and of waste";
}

TEST(Tiles, WalkableOnesAreLighter) {
  const Surface& tiles = Sheet("tiles");
  EXPECT_GE(ShareOfWalkableLighter(tiles), 0.8);
  double walkable = 0;
  double blocking = 0;
  int count = 0;
  for (int code = 1; code <= kTileCodes; ++code) {
    (IsWalkable(code) ? walkable : blocking) += MeanGrey(tiles, TileCell(code));
    count += IsWalkable(code) ? 1 : 0;
  }
  EXPECT_GE(walkable / count - blocking / (kTileCodes - count), 40) << "measured: 149 and 99";
}

TEST(Tiles, NeighboursDifferInGrey) {
  for (const TilePair& pair : kNeighbours) {
    EXPECT_TRUE(IsWalkable(pair.Walkable)) << pair.Name;
    EXPECT_FALSE(IsWalkable(pair.Blocking)) << pair.Name;
  }
  EXPECT_THAT(NeighbourFaults(Sheet("tiles"), kNeighbours), IsEmpty());
}

TEST(Tiles, HeroesStandOutFromEveryGround) {
  for (const char* hero : {"hero_man", "hero_woman"}) {
    for (int code = 1; code <= kTileCodes; ++code) {
      if (!IsWalkable(code) || kThings.contains(code)) continue;
      const Standout standout = Poorest(Sheet(hero), Sheet("tiles"), code);
      EXPECT_GE(standout.MeanColour, 95) << hero << " on " << code;   // measured: 118 and more
      EXPECT_GE(standout.MeanGrey, 60) << hero << " on " << code;     // 76 and more
      EXPECT_LE(standout.ShareLost, 0.15) << hero << " on " << code;  // 0.08 and less
    }
  }
}

TEST(Tiles, HeroesStandOutFromBridgesChestsAndDoors) {
  for (const char* hero : {"hero_man", "hero_woman"}) {
    for (const int code : kThings) {
      EXPECT_TRUE(IsWalkable(code));
      const Standout standout = Poorest(Sheet(hero), Sheet("tiles"), code);
      EXPECT_GE(standout.MeanColour, 65) << hero << " on " << code;  // measured: 68 and more
      EXPECT_GE(standout.MeanGrey, 33) << hero << " on " << code;    // 35 and more
      EXPECT_LE(standout.ShareLost, 0.5) << hero << " on " << code;  // 0.47 and less
    }
  }
}

// The checks above find what they are there to find.

TEST(TileFaults, GroundInTheColourOfTheOutline) {
  Surface tiles = Sheet("tiles");
  const Surface& hero = Sheet("hero_man");
  const Rect figure{24, 64, 24, 32};
  Colour rim = kWhite;
  for (int x = 23; x >= 0; --x) {
    if (hero.At(72 + figure.X + x, 80) == kWhite) rim = hero.At(figure.X + x, 80);
  }
  ASSERT_GE(StandoutOn(hero, figure, tiles, 7).MeanColour, 95);
  const Rect cell = TileCell(7);
  FillBox(tiles, cell.X, cell.Y, cell.X + 15, cell.Y + 15, rim);
  const Standout standout = StandoutOn(hero, figure, tiles, 7);
  EXPECT_LT(standout.MeanColour, 50);
  EXPECT_LT(standout.MeanGrey, 30);
  EXPECT_GT(standout.ShareLost, 0.25);
}

TEST(TileFaults, StandoutOfAPlainSquareIsItsDistance) {
  Surface hero(144, 128, kWhite);
  FillBox(hero, 72, 0, 143, 127, kBlack);
  FillBox(hero, 4, 4, 9, 9, 0x000000);
  FillBox(hero, 76, 4, 81, 9, kWhite);
  const Surface tiles(480, 128, 0x646464);
  const Standout standout = StandoutOn(hero, {0, 0, 24, 32}, tiles, 1);
  EXPECT_NEAR(standout.MeanGrey, 100, 0.01);
  EXPECT_NEAR(standout.MeanColour, 173.2, 0.01);
  EXPECT_EQ(standout.ShareLost, 0);
}

TEST(TileFaults, WaterAsLightAsGrass) {
  Surface tiles = Sheet("tiles");
  const Surface original = tiles;
  const Rect grass = TileCell(7);
  const Rect water = TileCell(182);
  BitBlt(tiles, water.X, water.Y, 16, 16, original, grass.X, grass.Y, Blit::Copy);
  EXPECT_THAT(NeighbourFaults(tiles, kNeighbours),
              ElementsAre(HasSubstr("grass and water"), HasSubstr("sandbank and water"),
                          HasSubstr("bridge and water")));
}

TEST(TileFaults, ASheetTurnedToItsNegative) {
  Surface tiles = Sheet("tiles");
  for (int y = 0; y < tiles.Height(); ++y) {
    for (int x = 0; x < tiles.Width(); ++x) FillBox(tiles, x, y, x, y, kWhite ^ tiles.At(x, y));
  }
  EXPECT_LT(ShareOfWalkableLighter(tiles), 0.2);
}

}  // namespace
}  // namespace orvane::pictures
