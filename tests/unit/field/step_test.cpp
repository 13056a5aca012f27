#include "src/field/step.h"

#include <gtest/gtest.h>

#include "src/core/game_record.h"
#include "src/core/new_game.h"
#include "src/field/tiles.h"

namespace orvane {
namespace {

constexpr int kGrass = 7;
constexpr int kTree = 89;
constexpr int kRoomDoor = 47;

// A map of open grass, without borders, so that every rule of the edges shows.
MapTiles Meadow() {
  MapTiles tiles;
  for (int column = 0; column < kMapColumns; ++column) {
    for (int row = 0; row < kMapRows; ++row) tiles[column][row] = kGrass;
  }
  return tiles;
}

// A meadow with one other tile, above the party of most tests.
MapTiles With(int code) {
  MapTiles tiles = Meadow();
  tiles[6][5] = code;
  return tiles;
}

StepTaken Try(const MapTiles& tiles, const WalkRules& rules, const Party& party,
              Direction direction) {
  return TryStep(LookAround(tiles, party.X, party.Y), rules, party, direction);
}

// Where a step on a meadow leads, the edges included.
Party Walked(const WalkRules& rules, const Party& party, Direction direction) {
  const StepTaken step = Try(Meadow(), rules, party, direction);
  EXPECT_TRUE(step.Free);
  return CrossEdge(rules, step.After).value_or(step.After);
}

// The party as a test's failure tells of it.
std::string Told(const Party& party) {
  return MapName(party.Map()) + " of " + std::to_string(party.MapA) + "," +
         std::to_string(party.MapB) + " at " + std::to_string(party.X) + "," +
         std::to_string(party.Y) + (party.InBook ? " in a room" : "") + " from " +
         std::to_string(party.ReturnX) + "," + std::to_string(party.ReturnY);
}

TEST(Step, MovesFourPixels) {
  EXPECT_EQ(Told(Walked({}, {3, 3, 100, 100}, Direction::Up)), Told({3, 3, 100, 96}));
  EXPECT_EQ(Told(Walked({}, {3, 3, 100, 100}, Direction::Down)), Told({3, 3, 100, 104}));
  EXPECT_EQ(Told(Walked({}, {3, 3, 100, 100}, Direction::Left)), Told({3, 3, 96, 100}));
  EXPECT_EQ(Told(Walked({}, {3, 3, 100, 100}, Direction::Right)), Told({3, 3, 104, 100}));
}

TEST(Step, IsBlockedByTheNextCell) {
  EXPECT_FALSE(Try(With(kTree), {}, {3, 3, 100, 111}, Direction::Up).Free);
  EXPECT_FALSE(Try(With(kTree), {}, {3, 3, 100, 79}, Direction::Down).Free);
  EXPECT_FALSE(Try(With(kTree), {}, {3, 3, 112, 80}, Direction::Left).Free);
  EXPECT_FALSE(Try(With(kTree), {}, {3, 3, 95, 80}, Direction::Right).Free);
  EXPECT_TRUE(Try(With(kTree), {}, {3, 3, 100, 112}, Direction::Up).Free) << "a cell away";
  for (const Direction direction : kDirections) {
    EXPECT_FALSE(Try(With(kTree), {}, {3, 3, 100, 80}, direction).Free)
        << "nobody leaves a tile that blocks";
  }
}

TEST(Step, StaysWhereItIsWhenItIsBlocked) {
  const Party party{3, 3, 100, 111};
  EXPECT_EQ(Told(Try(With(kTree), {}, party, Direction::Up).After), Told(party));
}

// Where the map itself would let the party on, the feet's limits do not.
TEST(Step, EndsAtTheLimitsOfTheFeet) {
  EXPECT_FALSE(Try(Meadow(), {}, {3, 3, 100, 17}, Direction::Up).Free);
  EXPECT_TRUE(Try(Meadow(), {}, {3, 3, 100, 18}, Direction::Up).Free);
  EXPECT_FALSE(Try(Meadow(), {}, {3, 3, 17, 100}, Direction::Left).Free);
  EXPECT_TRUE(Try(Meadow(), {}, {3, 3, 18, 100}, Direction::Left).Free);
  EXPECT_FALSE(Try(Meadow(), {}, {3, 3, 463, 100}, Direction::Right).Free);
  EXPECT_TRUE(Try(Meadow(), {}, {3, 3, 462, 100}, Direction::Right).Free);
  MapTiles open_below = Meadow();
  open_below[6][kMapRows] = kGrass;  // the spare row, which no map fills
  EXPECT_FALSE(Try(open_below, {}, {3, 3, 100, 249}, Direction::Down).Free);
  EXPECT_TRUE(Try(open_below, {}, {3, 3, 100, 248}, Direction::Down).Free);
}

TEST(Step, CannotBeTakenOffTheMap) {
  EXPECT_THROW(LookAround(Meadow(), 100, 15), RunError);
  EXPECT_THROW(LookAround(Meadow(), 15, 100), RunError);
  EXPECT_THROW(LookAround(Meadow(), -4, 100), RunError);
  EXPECT_THROW(LookAround(Meadow(), 480, 100), RunError);
  EXPECT_THROW(LookAround(Meadow(), 100, 256), RunError);
}

TEST(Step, ChangesMapsAtTheEdges) {
  EXPECT_EQ(Told(Walked({}, {3, 3, 100, 20}, Direction::Up)), Told({3, 2, 100, 226}));
  EXPECT_EQ(Told(Walked({}, {3, 3, 100, 236}, Direction::Down)), Told({3, 4, 100, 30}));
  EXPECT_EQ(Told(Walked({}, {3, 3, 20, 100}, Direction::Left)), Told({2, 3, 463, 100}));
  EXPECT_EQ(Told(Walked({}, {3, 3, 460, 100}, Direction::Right)), Told({4, 3, 17, 100}));
}

TEST(Step, ChangesNoMapBetweenTheEdges) {
  for (const Party& party : {Party{3, 3, 18, 18}, {3, 3, 462, 239}}) {
    EXPECT_EQ(CrossEdge({}, party), std::nullopt) << Told(party);
  }
}

TEST(Step, TurnsBackOnAStepUpFromTheLandingColumn) {
  EXPECT_EQ(Told(Walked({}, {4, 3, 17, 100}, Direction::Up)), Told({3, 3, 464, 96}));
  EXPECT_EQ(Told(Walked({}, {3, 3, 464, 96}, Direction::Down)), Told({4, 3, 17, 100}));
}

TEST(Step, SwapsTheHiddenMapIn) {
  const WalkRules nine{3, true};
  EXPECT_EQ(Told(Walked({3}, {4, 4, 460, 100}, Direction::Right)), Told({5, 4, 17, 100}));
  EXPECT_EQ(Told(Walked(nine, {4, 4, 460, 100}, Direction::Right)), Told({6, 4, 17, 100}));
  EXPECT_EQ(Told(Walked(nine, {5, 3, 100, 236}, Direction::Down)), Told({6, 4, 100, 30}));
  EXPECT_EQ(Told(Walked(nine, {5, 5, 100, 20}, Direction::Up)), Told({6, 4, 100, 226}));
  EXPECT_EQ(Told(Walked(nine, {6, 4, 20, 100}, Direction::Left)), Told({4, 4, 463, 100}));
  EXPECT_EQ(Told(Walked(nine, {6, 4, 100, 20}, Direction::Up)), Told({5, 3, 100, 226}));
  EXPECT_EQ(Told(Walked(nine, {6, 4, 100, 236}, Direction::Down)), Told({5, 5, 100, 30}));
  EXPECT_EQ(Told(Walked(nine, {6, 4, 460, 100}, Direction::Right)), Told({7, 4, 17, 100}));
}

TEST(Step, GoesThroughDoorsUpwardOnly) {
  const StepTaken in = Try(With(kRoomDoor), {2}, {1, 1, 100, 111}, Direction::Up);
  EXPECT_TRUE(in.ThroughDoor);
  EXPECT_EQ(Told(in.Before), Told({1, 1, 232, 224, kSpringRoom, true, 100, 111}));
  EXPECT_EQ(Told(in.After), Told({1, 1, 232, 220, kSpringRoom, true, 100, 111}));
  const StepTaken on = Try(With(kRoomDoor), {2}, {1, 1, 100, 79}, Direction::Down);
  EXPECT_FALSE(on.ThroughDoor);
  EXPECT_EQ(Told(on.After), Told({1, 1, 100, 83}));
  EXPECT_FALSE(Try(With(kRoomDoor), {2}, {1, 1, 112, 80}, Direction::Left).ThroughDoor);
  EXPECT_FALSE(Try(With(kRoomDoor), {2}, {1, 1, 95, 80}, Direction::Right).ThroughDoor);
}

TEST(Step, LeadsToTheRoomOfTheDoorTheMapAndTheRound) {
  const auto behind = [](int door, int round, int map_a, int map_b) {
    const Party party{map_a, map_b, 100, 100};
    return MapName(Try(With(door), {round}, party, Direction::Up).Before.Map());
  };
  EXPECT_EQ(behind(kRoomDoor, 1, 1, 1), "Fresh");
  EXPECT_EQ(behind(116, 3, 3, 5), "Fresh");
  EXPECT_EQ(behind(kRoomDoor, 1, 2, 4), "Book1");
  EXPECT_EQ(behind(116, 2, 2, 4), "Book2");
  EXPECT_EQ(behind(116, 3, 5, 3), "Book3");
  EXPECT_EQ(behind(kRoomDoor, 4, 2, 4), "Book4");
  EXPECT_EQ(behind(kLastBookDoor, 1, 5, 5), "BookF");
  EXPECT_EQ(behind(kLastBookDoor, 1, 1, 1), "BookF");
}

TEST(Step, ADoorWithinARoomLeadsBackIntoItsOwnCoordinates) {
  const Party inside{2, 4, 100, 100, BookRoom(1), true, 40, 50};
  const Party behind = Try(With(kRoomDoor), {1}, inside, Direction::Up).Before;
  EXPECT_EQ(Told(behind), Told({2, 4, 232, 224, BookRoom(1), true, 100, 100}));
}

TEST(Step, LeavesARoomOverItsBottom) {
  const Party inside{2, 4, 232, 236, BookRoom(1), true, 100, 101};
  EXPECT_EQ(Told(Walked({}, inside, Direction::Down)), Told({2, 4, 100, 101}));
  const Party beside = Walked({}, {2, 4, 20, 100, BookRoom(1), true, 100, 101}, Direction::Left);
  EXPECT_TRUE(beside.InBook) << "a room that is not walled lets the party out without leaving it";
  EXPECT_EQ(MapName(beside.Map()), "map4-1");
}

TEST(Step, MeetsTheDragonsInTheirStrips) {
  EXPECT_TRUE(BeforeDragon({4, 1, 224, 116}));
  EXPECT_TRUE(BeforeDragon({4, 1, 240, 18}));
  for (const Party& beside : {Party{4, 1, 223, 116},
                              {4, 1, 241, 116},
                              {4, 1, 232, 117},
                              {4, 2, 232, 100},
                              {3, 1, 232, 100}}) {
    EXPECT_FALSE(BeforeDragon(beside)) << Told(beside);
  }
  EXPECT_TRUE(BeforeLastDragon({0, 0, 224, 48}));
  EXPECT_TRUE(BeforeLastDragon({0, 0, 240, 18}));
  for (const Party& beside : {Party{0, 0, 223, 48}, {0, 0, 241, 48}, {0, 0, 232, 49}}) {
    EXPECT_FALSE(BeforeLastDragon(beside)) << Told(beside);
  }
}

TEST(Step, BeginsWhereAFreshRecordHasTheParty) {
  GameRecord record;
  FreshRecord(record);
  EXPECT_EQ((record.SaveX - 1) * kTileSize, kGameStart.X);
  EXPECT_EQ((record.SaveY - 1) * kTileSize, kGameStart.Y);
}

TEST(Party, IsTheSameOnlyWhereEverythingIs) {
  const Party party{3, 2, 192, 96, kSpringRoom, true, 10, 20};
  EXPECT_EQ(party, party);
  for (const Party& other : {Party{4, 2, 192, 96, kSpringRoom, true, 10, 20},
                             Party{3, 3, 192, 96, kSpringRoom, true, 10, 20},
                             Party{3, 2, 196, 96, kSpringRoom, true, 10, 20},
                             Party{3, 2, 192, 92, kSpringRoom, true, 10, 20},
                             Party{3, 2, 192, 96, kLastBookRoom, true, 10, 20},
                             Party{3, 2, 192, 96, kSpringRoom, false, 10, 20},
                             Party{3, 2, 192, 96, kSpringRoom, true, 11, 20},
                             Party{3, 2, 192, 96, kSpringRoom, true, 10, 21}}) {
    EXPECT_NE(party, other) << Told(other);
  }
}

}  // namespace
}  // namespace orvane
