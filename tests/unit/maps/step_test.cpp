#include "tools/maps/step.h"

#include <gtest/gtest.h>

namespace orvane::maps {
namespace {

// A world of open grass, without borders, so that every step is free.
World OpenWorld() {
  TileMap grass;
  for (int column = 0; column < kMapColumns; ++column) {
    for (int row = 0; row < kMapRows; ++row) grass.Set(column, row, 7);
  }
  World world;
  for (const MapId& place : AllPlaces()) world.Maps[place] = grass;
  return world;
}

TEST(WorldStep, GoesOnOnTheNextMapOfTheWorld) {
  const Outcome outcome = Step(OpenWorld(), RulesOf(1, false), {3, 3, 100, 20}, Direction::Up);
  EXPECT_EQ(outcome.event, Event::Walked);
  EXPECT_EQ(outcome.party, (Party{3, 2, 100, 226}));
}

TEST(WorldStep, IsBlockedByATileOfItsMap) {
  World world = OpenWorld();
  world.Maps[kStartMap].Set(6, 5, 89);
  EXPECT_EQ(Step(world, RulesOf(1, false), {3, 3, 100, 111}, Direction::Up).event, Event::Blocked);
  EXPECT_EQ(Step(world, RulesOf(1, false), {3, 2, 100, 111}, Direction::Up).event, Event::Walked);
}

TEST(WorldStep, FindsMapsThatDoNotExist) {
  World world = OpenWorld();
  const Outcome beyond = Step(world, RulesOf(3, true), {6, 4, 460, 100}, Direction::Right);
  EXPECT_EQ(beyond.event, Event::NoSuchMap);
  EXPECT_EQ(beyond.party.MapA, 7);
  world.Maps[kStartMap].Set(6, 5, 47);
  EXPECT_EQ(Step(world, RulesOf(3, false), {3, 3, 100, 100}, Direction::Up).event, Event::Walked);
  EXPECT_EQ(Step(world, RulesOf(4, false), {3, 3, 100, 100}, Direction::Up).event, Event::NoSuchMap)
      << "the last stage has no book room";
}

TEST(WorldStep, MeetsTheDragonBeforeItMoves) {
  const World world = OpenWorld();
  const auto event = [&](int round, const Party& party, Direction direction) {
    return Step(world, RulesOf(round, round > 3), party, direction).event;
  };
  EXPECT_EQ(event(1, {4, 1, 240, 116}, Direction::Down), Event::Dragon);
  EXPECT_EQ(event(1, {4, 1, 232, 117}, Direction::Up), Event::Walked);
  EXPECT_EQ(event(4, {0, 0, 232, 48}, Direction::Up), Event::Dragon);
  EXPECT_EQ(event(4, {0, 0, 232, 52}, Direction::Up), Event::Walked);
  EXPECT_EQ(event(3, {3, 3, 232, 48}, Direction::Up), Event::Walked);
}

TEST(WorldStep, MeetsNoDragonBehindADoor) {
  World world = OpenWorld();
  world.Maps[kDragonMap].Set(14, 5, 47);
  EXPECT_EQ(Step(world, RulesOf(1, false), {4, 1, 232, 100}, Direction::Up).event, Event::Walked);
}

}  // namespace
}  // namespace orvane::maps
