#include "tools/maps/step.h"

#include <gtest/gtest.h>

#include "tools/maps/tile_codes.h"

namespace orvane::maps {
namespace {

// A world of open grass, without borders, so that every rule of the edges shows.
World OpenWorld() {
  TileMap grass;
  for (int column = 0; column < kColumns; ++column) {
    for (int row = 0; row < kRows; ++row) grass.Set(column, row, 7);
  }
  World world;
  for (const Place& place : AllPlaces()) world.maps[place] = grass;
  return world;
}

Party At(int map_a, int map_b, int x, int y) {
  return {map_a, map_b, x, y};
}

void ExpectAt(const Outcome& outcome, int map_a, int map_b, int x, int y) {
  EXPECT_EQ(outcome.event, Event::Walked);
  EXPECT_EQ(outcome.party, At(map_a, map_b, x, y));
}

TEST(Step, MovesFourPixels) {
  const World world = OpenWorld();
  ExpectAt(Step(world, {}, At(3, 3, 100, 100), Direction::Up), 3, 3, 100, 96);
  ExpectAt(Step(world, {}, At(3, 3, 100, 100), Direction::Down), 3, 3, 100, 104);
  ExpectAt(Step(world, {}, At(3, 3, 100, 100), Direction::Left), 3, 3, 96, 100);
  ExpectAt(Step(world, {}, At(3, 3, 100, 100), Direction::Right), 3, 3, 104, 100);
}

TEST(Step, IsBlockedByTheNextCell) {
  World world = OpenWorld();
  world.maps[kStartMap].Set(6, 5, 89);
  EXPECT_EQ(Step(world, {}, At(3, 3, 100, 111), Direction::Up).event, Event::Blocked);
  EXPECT_EQ(Step(world, {}, At(3, 3, 100, 79), Direction::Down).event, Event::Blocked);
  EXPECT_EQ(Step(world, {}, At(3, 3, 100, 80), Direction::Left).event, Event::Blocked)
      << "nobody leaves a tile that blocks";
}

TEST(Step, ChangesMapsAtTheEdges) {
  const World world = OpenWorld();
  ExpectAt(Step(world, {}, At(3, 3, 100, 20), Direction::Up), 3, 2, 100, 226);
  ExpectAt(Step(world, {}, At(3, 3, 100, 236), Direction::Down), 3, 4, 100, 30);
  ExpectAt(Step(world, {}, At(3, 3, 20, 100), Direction::Left), 2, 3, 463, 100);
  ExpectAt(Step(world, {}, At(3, 3, 460, 100), Direction::Right), 4, 3, 17, 100);
}

TEST(Step, TurnsBackOnAStepUpFromTheLandingColumn) {
  const World world = OpenWorld();
  ExpectAt(Step(world, {}, At(4, 3, 17, 100), Direction::Up), 3, 3, 464, 96);
  ExpectAt(Step(world, {}, At(3, 3, 464, 96), Direction::Down), 4, 3, 17, 100);
}

TEST(Step, SwapsTheHiddenMapIn) {
  const World world = OpenWorld();
  const StepRules nine{3, true};
  ExpectAt(Step(world, {3, false}, At(4, 4, 460, 100), Direction::Right), 5, 4, 17, 100);
  ExpectAt(Step(world, nine, At(4, 4, 460, 100), Direction::Right), 6, 4, 17, 100);
  ExpectAt(Step(world, nine, At(5, 3, 100, 236), Direction::Down), 6, 4, 100, 30);
  ExpectAt(Step(world, nine, At(5, 5, 100, 20), Direction::Up), 6, 4, 100, 226);
  ExpectAt(Step(world, nine, At(6, 4, 20, 100), Direction::Left), 4, 4, 463, 100);
  ExpectAt(Step(world, nine, At(6, 4, 100, 20), Direction::Up), 5, 3, 100, 226);
  ExpectAt(Step(world, nine, At(6, 4, 100, 236), Direction::Down), 5, 5, 100, 30);
  EXPECT_EQ(Step(world, nine, At(6, 4, 460, 100), Direction::Right).event, Event::NoSuchMap);
}

TEST(Step, GoesThroughDoorsUpwardOnly) {
  World world = OpenWorld();
  world.maps[Place{1, 1}].Set(6, 5, 47);
  world.maps[Place{2, 4}].Set(6, 5, 116);
  world.maps[Place{5, 5}].Set(6, 5, kBookFDoor);
  const Party spring = Step(world, {2, false}, At(1, 1, 100, 111), Direction::Up).party;
  EXPECT_EQ(spring, (Party{1, 1, 232, 220, Room::Fresh, true, 100, 111}));
  EXPECT_EQ(Step(world, {2, false}, At(2, 4, 100, 100), Direction::Up).party.room, Room::Book2);
  EXPECT_EQ(Step(world, {3, false}, At(2, 4, 100, 100), Direction::Up).party.room, Room::Book3);
  EXPECT_EQ(Step(world, {1, false}, At(5, 5, 100, 100), Direction::Up).party.room, Room::BookF);
  ExpectAt(Step(world, {}, At(1, 1, 100, 79), Direction::Down), 1, 1, 100, 83);
}

TEST(Step, LeavesARoomOverItsBottom) {
  const World world = OpenWorld();
  const Party inside{2, 4, 232, 236, Room::Book1, true, 100, 101};
  ExpectAt(Step(world, {}, inside, Direction::Down), 2, 4, 100, 101);
  const Outcome beside =
      Step(world, {}, {2, 4, 20, 100, Room::Book1, true, 100, 101}, Direction::Left);
  EXPECT_TRUE(beside.party.in_book) << "an unwalled room lets the party out without leaving it";
  EXPECT_EQ(beside.party.Ground(), (Place{1, 4}));
}

TEST(Step, MeetsTheDragonInItsStrip) {
  const World world = OpenWorld();
  EXPECT_EQ(Step(world, {}, At(4, 1, 225, 116), Direction::Up).event, Event::Dragon);
  EXPECT_EQ(Step(world, {}, At(4, 1, 240, 116), Direction::Down).event, Event::Dragon);
  EXPECT_EQ(Step(world, {}, At(4, 1, 241, 116), Direction::Up).event, Event::Walked);
  EXPECT_EQ(Step(world, {}, At(4, 1, 223, 116), Direction::Up).event, Event::Walked);
  EXPECT_EQ(Step(world, {}, At(4, 1, 232, 117), Direction::Up).event, Event::Walked);
  EXPECT_EQ(Step(world, {4, true}, At(0, 0, 232, 48), Direction::Up).event, Event::Dragon);
  EXPECT_EQ(Step(world, {4, true}, At(0, 0, 232, 52), Direction::Up).event, Event::Walked);
  EXPECT_EQ(Step(world, {3, true}, At(3, 3, 232, 48), Direction::Up).event, Event::Walked);
}

TEST(Step, BeginsWhereTheRoundsBegin) {
  EXPECT_EQ(StartOf(1), At(3, 3, 192, 96));
  EXPECT_EQ(StartOf(2), At(3, 3, 208, 112));
  EXPECT_EQ(StartOf(3), At(3, 3, 208, 112));
  EXPECT_EQ(StartOf(4), At(0, 0, 232, 224));
}

}  // namespace
}  // namespace orvane::maps
