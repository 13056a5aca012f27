// The checker must be content with the maps of the game, and must find each fault planted in them.
#include "tools/maps/check.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "src/field/tiles.h"
#include "tools/maps/distances.h"

namespace orvane::maps {
namespace {

constexpr int kGrass = 7;
constexpr int kTree = 119;

const World& GameWorld() {
  static const World world = ReadTiledWorld(ORVANE_MAP_SOURCES);
  return world;
}

Journey JourneyNamed(const std::string& name) {
  for (const Journey& journey : AllJourneys()) {
    if (journey.Name == name) return journey;
  }
  ADD_FAILURE() << "no journey " << name;
  return {};
}

bool Has(const std::vector<Fault>& faults, FaultKind kind) {
  return std::any_of(faults.begin(), faults.end(),
                     [&](const Fault& fault) { return fault.Kind == kind; });
}

bool DrawingFault(const World& world, FaultKind kind) {
  return Has(CheckDrawing(world), kind);
}

bool WalkingFault(const World& world, FaultKind kind, const std::string& journey = "round 1") {
  return Has(CheckJourney(world, Explore(world, JourneyNamed(journey))), kind);
}

struct Spot {
  int Column;
  int Row;
};

// The first cell of a code on a map; the test fails when there is none.
Spot Find(const World& world, const MapId& place, int code) {
  for (int column = 0; column < kMapColumns; ++column) {
    for (int row = 0; row < kMapRows; ++row) {
      if (world.Find(place)->At(column, row) == code) return {column, row};
    }
  }
  ADD_FAILURE() << "no tile " << code << " on " << PlaceName(place);
  return {0, 0};
}

// Puts trees on all cells around a cell.
void Enclose(World& world, const MapId& place, const Spot& spot, int reach = 1) {
  for (int column = spot.Column - 1; column <= spot.Column + reach; ++column) {
    for (int row = spot.Row - 1; row <= spot.Row + reach; ++row) {
      const bool inside = column >= spot.Column && column < spot.Column + reach &&
                          row >= spot.Row && row < spot.Row + reach;
      if (!inside) world.Maps[place].Set(column, row, kTree);
    }
  }
}

TEST(MapCheck, TheMapsOfTheGameKeepEveryRule) {
  for (const Fault& fault : CheckWorld(GameWorld())) {
    ADD_FAILURE() << KindName(fault.Kind) << ": " << fault.What;
  }
}

TEST(MapCheck, FindsCodesThatAreNotDrawn) {
  for (const int code : {0, -1, 241}) {
    World world = GameWorld();
    world.Maps[kStartMap].Set(5, 5, code);
    EXPECT_TRUE(DrawingFault(world, FaultKind::BadCode)) << code;
  }
}

TEST(MapCheck, FindsBordersThatDoNotMatch) {
  World beside = GameWorld();
  beside.Maps[kStartMap].Set(29, 9, kTree);
  EXPECT_TRUE(DrawingFault(beside, FaultKind::Border));
  World below = GameWorld();
  below.Maps[kStartMap].Set(20, 15, kGrass);
  EXPECT_TRUE(DrawingFault(below, FaultKind::Border));
  World hidden = GameWorld();
  hidden.Maps[kHiddenMap].Set(0, 3, kGrass);
  EXPECT_TRUE(DrawingFault(hidden, FaultKind::Border));
}

TEST(MapCheck, FindsOpenBorders) {
  struct Hole {
    MapId Place;
    int Column;
    int Row;
  };
  const Hole holes[] = {
      {{1, 1}, 12, 0},
      {{1, 3}, 0, 4},
      {{5, 3}, 29, 4},
      {{3, 5}, 12, 15},
      {kHiddenMap, 29, 8},
      {kLastStage, 14, 15},
      {kLastStage, 0, 8},
      {{0, 0, kSpringRoom}, 0, 9},
      {{0, 0, kLastBookRoom}, 14, 0},
      {{0, 0, BookRoom(2)}, 29, 5},
  };
  for (const Hole& hole : holes) {
    World world = GameWorld();
    world.Maps[hole.Place].Set(hole.Column, hole.Row, kGrass);
    EXPECT_TRUE(DrawingFault(world, FaultKind::OpenBorder))
        << PlaceName(hole.Place) << " " << hole.Column << "," << hole.Row;
  }
}

TEST(MapCheck, FindsMisplacedFurniture) {
  struct Piece {
    MapId Place;
    int Column;
    int Row;
    int Code;
  };
  const Piece pieces[] = {
      {{5, 4}, 10, 5, kChest},
      {kStartMap, 9, 9, kChest},
      {kStartMap, 9, 9, kBookTopLeft},
      {kDragonMap, 9, 9, 47},
      {{4, 3}, 9, 9, kLastBookDoor},
      {{0, 0, BookRoom(1)}, 11, 8, 116},
      {{0, 0, kSpringRoom}, 9, 10, kChest},
  };
  for (const Piece& piece : pieces) {
    World world = GameWorld();
    world.Maps[piece.Place].Set(piece.Column, piece.Row, piece.Code);
    EXPECT_TRUE(DrawingFault(world, FaultKind::Furniture)) << piece.Code;
  }
}

TEST(MapCheck, FindsMissingFurniture) {
  const std::pair<MapId, int> pieces[] = {
      {kStartMap, kChest},     {{3, 4}, kBookTopLeft}, {kHiddenMap, kBookBottomRight},
      {{5, 5}, kLastBookDoor}, {{1, 1}, 116},          {{3, 5}, 116}};
  for (const auto& [place, code] : pieces) {
    World world = GameWorld();
    const Spot spot = Find(world, place, code);
    world.Maps[place].Set(spot.Column, spot.Row, kGrass);
    EXPECT_TRUE(DrawingFault(world, FaultKind::Furniture)) << PlaceName(place) << " " << code;
  }
}

TEST(MapCheck, FindsABookChestInPieces) {
  World world = GameWorld();
  const Spot spot = Find(world, {3, 4}, kBookTopLeft);
  world.Maps[MapId{3, 4}].Set(spot.Column, spot.Row, kBookTopRight);
  world.Maps[MapId{3, 4}].Set(spot.Column + 1, spot.Row, kBookTopLeft);
  EXPECT_TRUE(DrawingFault(world, FaultKind::Furniture));
}

TEST(MapCheck, FindsGoalsOutOfReach) {
  const std::pair<MapId, int> goals[] = {
      {kStartMap, kChest}, {{1, 5}, kChest},
      {{5, 1}, kChest},    {kStartMap, kRecovery},
      {{1, 1}, 116},       {{5, 5}, kLastBookDoor},
      {{2, 4}, 47},        {{0, 0, kSpringRoom}, kRecovery},
  };
  for (const auto& [place, code] : goals) {
    World world = GameWorld();
    Enclose(world, place, Find(world, place, code));
    EXPECT_TRUE(WalkingFault(world, FaultKind::Unreachable)) << PlaceName(place) << " " << code;
  }
}

TEST(MapCheck, FindsBookChestsOutOfReach) {
  World world = GameWorld();
  Enclose(world, {1, 3}, Find(world, {1, 3}, kBookTopLeft), 2);
  EXPECT_TRUE(WalkingFault(world, FaultKind::Unreachable));
  World hidden = GameWorld();
  Enclose(hidden, kHiddenMap, Find(hidden, kHiddenMap, kBookTopLeft), 2);
  EXPECT_TRUE(WalkingFault(hidden, FaultKind::Unreachable, "round 3 with nine techniques"));
  EXPECT_FALSE(WalkingFault(hidden, FaultKind::Unreachable, "round 3"));
}

TEST(MapCheck, FindsDragonsOutOfReach) {
  World world = GameWorld();
  for (int column = 0; column < kMapColumns; ++column) world.Maps[kDragonMap].Set(column, 8, kTree);
  EXPECT_TRUE(WalkingFault(world, FaultKind::Unreachable));
  World last = GameWorld();
  last.Maps[kLastStage].Set(14, 4, kTree);
  EXPECT_TRUE(WalkingFault(last, FaultKind::Unreachable, "last stage"));
}

TEST(MapCheck, FindsARoomWithoutAWayOut) {
  World world = GameWorld();
  for (int column = 0; column < kMapColumns; ++column) {
    world.Maps[MapId{0, 0, kSpringRoom}].Set(column, 15, 204);
  }
  EXPECT_TRUE(DrawingFault(world, FaultKind::Unreachable));
  EXPECT_TRUE(WalkingFault(world, FaultKind::Unreachable));
  EXPECT_TRUE(WalkingFault(world, FaultKind::Trap));
}

TEST(MapCheck, FindsALandingOnATileThatBlocks) {
  World world = GameWorld();
  world.Maps[kStartMap].Set(16, 14, kTree);
  EXPECT_TRUE(WalkingFault(world, FaultKind::DeadEnd));
}

TEST(MapCheck, FindsASavedGameThatCannotGoOn) {
  World world = GameWorld();
  world.Maps[MapId{5, 5}].Set(14, 13, kTree);
  EXPECT_TRUE(WalkingFault(world, FaultKind::DeadEnd));
}

TEST(MapCheck, FindsTraps) {
  World world = GameWorld();
  world.Maps[kStartMap].Set(16, 13, kTree);
  world.Maps[kStartMap].Set(15, 14, kTree);
  world.Maps[kStartMap].Set(17, 14, kTree);
  world.Maps[kStartMap].Set(16, 15, kTree);
  EXPECT_TRUE(WalkingFault(world, FaultKind::Trap));
}

TEST(MapCheck, FindsFlipFlops) {
  for (const int row : {7, 9}) {
    World left = GameWorld();
    left.Maps[kStartMap].Set(1, row, kGrass);
    EXPECT_TRUE(WalkingFault(left, FaultKind::FlipFlop)) << row;
  }
  World right = GameWorld();
  right.Maps[MapId{2, 3}].Set(28, 9, kGrass);
  EXPECT_TRUE(WalkingFault(right, FaultKind::FlipFlop));
}

TEST(MapCheck, FindsAWayToAMapThatDoesNotExist) {
  World world = GameWorld();
  for (int column = 18; column < kMapColumns; ++column)
    world.Maps[MapId{5, 3}].Set(column, 13, kGrass);
  EXPECT_TRUE(WalkingFault(world, FaultKind::NoSuchMap));
  World hidden = GameWorld();
  for (int column = 19; column < kMapColumns; ++column)
    hidden.Maps[kHiddenMap].Set(column, 8, kGrass);
  EXPECT_TRUE(WalkingFault(hidden, FaultKind::NoSuchMap, "round 3 with nine techniques"));
}

TEST(MapCheck, FindsWrongExits) {
  World room = GameWorld();
  for (int column = 0; column < 15; ++column) {
    room.Maps[MapId{0, 0, kSpringRoom}].Set(column, 11, 206);
  }
  EXPECT_TRUE(WalkingFault(room, FaultKind::WrongExit));
  World last = GameWorld();
  last.Maps[kLastStage].Set(14, 15, 235);
  EXPECT_TRUE(WalkingFault(last, FaultKind::WrongExit, "last stage"));
}

TEST(MapCheck, FindsTooLongAWayToRecovery) {
  World world = GameWorld();
  for (auto& [place, map] : world.Maps) {
    for (int column = 0; column < kMapColumns; ++column) {
      for (int row = 0; row < kMapRows; ++row) {
        if (map.At(column, row) == kRecovery && place != kStartMap) map.Set(column, row, kGrass);
      }
    }
  }
  EXPECT_TRUE(WalkingFault(world, FaultKind::FarFromRecovery));
}

// The wastes keep their battle ground to themselves, and the dragon is met on it.
TEST(MapCheck, TheWastesAreARegionOfTheirOwn) {
  for (const auto& [place, map] : GameWorld().Maps) {
    int cells = 0;
    for (int column = 0; column < kMapColumns; ++column) {
      for (int row = 0; row < kMapRows; ++row) cells += IsWasteGround(map.At(column, row)) ? 1 : 0;
    }
    const bool wastes = place == kDragonMap || place == MapId{4, 2} || place == MapId{5, 2};
    EXPECT_EQ(cells > 0, wastes) << PlaceName(place);
  }
  const Exploration exploration = Explore(GameWorld(), JourneyNamed("round 1"));
  for (const Stand& stand : exploration.Stands) {
    if (std::count(stand.Next.begin(), stand.Next.end(), kToDragon) == 0) continue;
    EXPECT_TRUE(IsWasteGround(TileUnder(GameWorld(), stand.party)));
  }
}

TEST(Distances, AreToldForEveryGoal) {
  const Exploration exploration =
      Explore(GameWorld(), JourneyNamed("round 3 with nine techniques"));
  const std::vector<Goal> goals = GoalsOf(GameWorld(), exploration);
  const auto table = StepsBetween(exploration, goals);
  ASSERT_EQ(goals.front().Name, "start");
  ASSERT_EQ(goals.back().Name, "dragon");
  const auto count = [&](const std::string& first) {
    return std::count_if(goals.begin(), goals.end(),
                         [&](const Goal& goal) { return goal.Name.rfind(first, 0) == 0; });
  };
  EXPECT_EQ(count("chest"), 15);
  EXPECT_EQ(count("book"), 4);
  for (size_t from = 0; from + 1 < goals.size(); ++from) {
    EXPECT_EQ(table[from][from], 0);
    for (size_t to = 0; to < goals.size(); ++to) {
      EXPECT_GE(table[from][to], 0) << goals[from].Name << " to " << goals[to].Name;
      EXPECT_LE(table[0][to], table[0][from] + table[from][to] + 8)
          << "a way round cannot be shorter than the shortest, bar a cell's width";
    }
  }
  const std::string text = DistanceTable(GameWorld(), exploration);
  EXPECT_NE(text.find("chest 5,1"), std::string::npos);
  EXPECT_GT(StepsOfATour(goals, table), 2000);
}

TEST(Distances, ATourGoesToTheNearestChestFirst) {
  const std::vector<Goal> goals = {
      {"start", {}}, {"chest 1,1", {}}, {"book 1,3", {}}, {"rest 1,1", {}}, {"dragon", {}}};
  std::vector<std::vector<int32_t>> steps = {{0, 50, 20, 1, 9},
                                             {50, 0, 30, 1, 400},
                                             {20, 30, 0, 1, 9},
                                             {1, 1, 1, 0, 1},
                                             {-1, -1, -1, -1, 0}};
  EXPECT_EQ(StepsOfATour(goals, steps), 20 + 30 + 400);
  steps[2][1] = -1;
  EXPECT_EQ(StepsOfATour(goals, steps), -1);
}

}  // namespace
}  // namespace orvane::maps
