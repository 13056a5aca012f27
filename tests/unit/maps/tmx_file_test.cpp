#include "tools/maps/tmx_file.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "tools/files.h"
#include "tools/maps/tileset.h"
#include "tools/maps/world.h"

namespace orvane::maps {
namespace {

std::string SourceText(const MapId& place) {
  return ReadFile(ORVANE_MAP_SOURCES "/" + MapName(place) + ".tmx");
}

std::string Replaced(std::string text, const std::string& from, const std::string& to) {
  const size_t at = text.find(from);
  EXPECT_NE(at, std::string::npos) << from;
  return at == std::string::npos ? text : text.replace(at, from.size(), to);
}

TEST(TmxFile, EverySourceComesBackByteForByte) {
  for (const MapId& place : AllPlaces()) {
    const std::string source = SourceText(place);
    const std::string dat = WriteDat(ReadTmx(source));
    const std::string again = WriteTmx(ReadDat(dat), ReadTmxTitle(source));
    EXPECT_EQ(WriteDat(ReadTmx(again)), dat) << MapName(place);
    EXPECT_EQ(ReadTmx(again), ReadTmx(source)) << MapName(place);
    EXPECT_EQ(ReadTmxTitle(again), ReadTmxTitle(source)) << MapName(place);
    EXPECT_FALSE(ReadTmxTitle(source).empty()) << MapName(place);
  }
}

TEST(TmxFile, RowsOfTiledBecomeColumnsOfTheGame) {
  TileMap map;
  map.Set(2, 1, 135);
  const std::string text = WriteTmx(map);
  EXPECT_NE(text.find("0,0,135,0"), std::string::npos);
  EXPECT_EQ(ReadTmx(text), map);
}

TEST(TmxFile, FollowsTheTilesetsFirstNumber) {
  TileMap map;
  for (int row = 0; row < kMapRows; ++row) {
    for (int column = 0; column < kMapColumns; ++column) map.Set(column, row, 7);
  }
  std::string text = WriteTmx(map);
  TileMap shifted;
  for (int row = 0; row < kMapRows; ++row) {
    for (int column = 0; column < kMapColumns; ++column) shifted.Set(column, row, 3);
  }
  EXPECT_EQ(ReadTmx(Replaced(text, "firstgid=\"1\"", "firstgid=\"5\"")), shifted);
}

TEST(TmxFile, RefusesMapsOfAnotherMake) {
  const std::string good = WriteTmx(TileMap());
  EXPECT_NO_THROW(ReadTmx(good));
  EXPECT_THROW(ReadTmx(""), std::runtime_error);
  EXPECT_THROW(ReadTmx("<html></html>"), std::runtime_error);
  EXPECT_THROW(ReadTmx(Replaced(good, "encoding=\"csv\"", "encoding=\"base64\"")),
               std::runtime_error);
  EXPECT_THROW(ReadTmx(Replaced(good, "infinite=\"0\"", "infinite=\"1\"")), std::runtime_error);
  EXPECT_THROW(
      ReadTmx(Replaced(good, "name=\"tiles\" width=\"30\"", "name=\"tiles\" width=\"31\"")),
      std::runtime_error);
  EXPECT_THROW(ReadTmx(Replaced(good, " <tileset",
                                " <tileset firstgid=\"241\" source=\"b.tsx\"/>\n <tileset")),
               std::runtime_error);
  const size_t layer = good.find(" <layer");
  const std::string twice = good.substr(0, good.find("</map>")) + good.substr(layer);
  EXPECT_THROW(ReadTmx(twice), std::runtime_error);
  EXPECT_THROW(ReadTmx(Replaced(good, "</data>", "")), std::runtime_error);
}

TEST(TmxFile, RefusesTurnedAndForeignTiles) {
  TileMap map;
  map.Set(0, 0, 77);
  const std::string good = WriteTmx(map);
  EXPECT_THROW(ReadTmx(Replaced(good, "\n77,", "\n2147483725,")), std::runtime_error);
  EXPECT_THROW(ReadTmx(Replaced(good, "\n77,", "\n241,")), std::runtime_error);
  EXPECT_THROW(ReadTmx(Replaced(good, "\n77,", "\nx,")), std::runtime_error);
  EXPECT_THROW(ReadTmx(Replaced(good, "\n77,", "\n")), std::runtime_error);
}

TEST(TmxFile, DoesNotWriteCodesThatTheTilesetLacks) {
  TileMap map;
  map.Set(4, 4, 241);
  EXPECT_THROW(WriteTmx(map), std::runtime_error);
}

TEST(Tileset, IsTheOneThatTheCatalogueMakes) {
  const auto tiles = ReadCatalogue(ReadFile(ORVANE_MAP_SOURCES "/tiles.csv"));
  EXPECT_EQ(ReadFile(ORVANE_MAP_SOURCES "/tiles.tsx"),
            WriteTileset(tiles, "../pictures/sheets/tiles.png"));
}

TEST(Tileset, AgreesWithTheGameAboutWalking) {
  auto tiles = ReadCatalogue(ReadFile(ORVANE_MAP_SOURCES "/tiles.csv"));
  EXPECT_TRUE(CatalogueFaults(tiles).empty());
  tiles[35].Walkable = false;
  tiles[0].Walkable = true;
  EXPECT_EQ(CatalogueFaults(tiles).size(), 2u);
}

TEST(Tileset, RefusesABrokenCatalogue) {
  EXPECT_THROW(ReadCatalogue(""), std::runtime_error);
  EXPECT_THROW(ReadCatalogue("code,walkable\n"), std::runtime_error);
  EXPECT_THROW(ReadCatalogue("code,walkable,group,name,note\n2,0,water,deep,\n"),
               std::runtime_error);
  EXPECT_THROW(ReadCatalogue("code,walkable,group,name,note\n1,0,water,deep,\n"),
               std::runtime_error);
}

}  // namespace
}  // namespace orvane::maps
