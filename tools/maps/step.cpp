#include "tools/maps/step.h"

#include "tools/maps/tile_codes.h"

namespace orvane::maps {
namespace {

constexpr int kTile = 16;
constexpr int kStep = 4;

Room BookRoomOf(int round) {
  switch (round) {
    case 1:
      return Room::Book1;
    case 2:
      return Room::Book2;
    case 3:
      return Room::Book3;
    default:
      return Room::None;
  }
}

Room RoomBehind(const StepRules& rules, const Party& party, int door) {
  if (door == kBookFDoor) return Room::BookF;
  const bool spring =
      (party.map_a == 1 && party.map_b == 1) || (party.map_a == 3 && party.map_b == 5);
  return spring ? Room::Fresh : BookRoomOf(rules.round);
}

// False when the door leads to a room that does not exist, as those of round 4.
bool BookRoomCheck(const StepRules& rules, int tile_up, Party& party) {
  if (!IsDoor(tile_up)) return true;
  party.in_book = true;
  party.room = RoomBehind(rules, party, tile_up);
  party.return_x = party.x;
  party.return_y = party.y;
  party.x = 232;
  party.y = 224;
  return party.room != Room::None;
}

void HiddenMapCheck(const StepRules& rules, Party& party) {
  if (party.map_a == 5 && party.map_b == 4 && rules.nine_techniques) party.map_a = 6;
}

// True when a map was read.
bool EdgeCheck(const StepRules& rules, Party& party) {
  if (party.y <= 17) {
    if (party.map_a == 6) party.map_a = 5;
    --party.map_b;
    HiddenMapCheck(rules, party);
    party.y += 210;
  } else if (party.y >= 240 && !party.in_book) {
    if (party.map_a == 6) party.map_a = 5;
    ++party.map_b;
    HiddenMapCheck(rules, party);
    party.y -= 210;
  } else if (party.y >= 240) {
    party.x = party.return_x;
    party.y = party.return_y;
    party.in_book = false;
    party.return_x = 0;
    party.return_y = 0;
  } else if (party.x < 18) {
    party.map_a = party.map_a == 6 ? 4 : party.map_a - 1;
    party.x += 447;
  } else if (party.x >= 463) {
    ++party.map_a;
    HiddenMapCheck(rules, party);
    party.x -= 447;
  } else {
    return false;
  }
  party.room = Room::None;
  return true;
}

int TileBeside(const TileMap& tiles, const Party& party, Direction direction) {
  const int column = party.x / kTile;
  const int row = party.y / kTile;
  switch (direction) {
    case Direction::Up:
      return tiles.At(column, row - 1);
    case Direction::Down:
      return tiles.At(column, row + 1);
    case Direction::Left:
      return tiles.At(column - 1, row);
    case Direction::Right:
      break;
  }
  return tiles.At(column + 1, row);
}

bool WithinLimit(const Party& party, Direction direction) {
  switch (direction) {
    case Direction::Up:
      return party.y > 17;
    case Direction::Down:
      return party.y < 249;
    case Direction::Left:
      return party.x > 17;
    case Direction::Right:
      break;
  }
  return party.x < 463;
}

void Move(Party& party, Direction direction) {
  switch (direction) {
    case Direction::Up:
      party.y -= kStep;
      break;
    case Direction::Down:
      party.y += kStep;
      break;
    case Direction::Left:
      party.x -= kStep;
      break;
    case Direction::Right:
      party.x += kStep;
      break;
  }
}

}  // namespace

Party StartOf(int round) {
  if (round == 1) return {3, 3, 192, 96};
  if (round == 4) return {0, 0, 232, 224};
  return {3, 3, 208, 112};
}

int TileUnder(const World& world, const Party& party) {
  const TileMap* tiles = world.Find(party.Ground());
  return tiles == nullptr ? 0 : tiles->At(party.x / kTile, party.y / kTile);
}

bool AtDragon(const StepRules& rules, const Party& party) {
  if (party.x < 224 || party.x > 240) return false;
  if (party.map_a == 4 && party.map_b == 1 && party.y <= 116) return true;
  return rules.round == 4 && party.y <= 48;
}

Outcome Step(const World& world, const StepRules& rules, const Party& party, Direction direction) {
  const TileMap* tiles = world.Find(party.Ground());
  if (tiles == nullptr) return {Event::NoSuchMap, party};
  if (!Walkable(TileUnder(world, party))) return {Event::Blocked, party};
  const int ahead = TileBeside(*tiles, party, direction);
  if (!Walkable(ahead) || !WithinLimit(party, direction)) return {Event::Blocked, party};
  Party next = party;
  if (direction == Direction::Up && !BookRoomCheck(rules, ahead, next)) {
    return {Event::NoSuchMap, next};
  }
  const bool dragon = AtDragon(rules, next);
  Move(next, direction);
  const bool read = EdgeCheck(rules, next);
  if (read && world.Find(next.Ground()) == nullptr) return {Event::NoSuchMap, next};
  if (dragon) return {Event::Dragon, next};
  return {Event::Walked, next};
}

}  // namespace orvane::maps
