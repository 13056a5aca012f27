#include "src/field/step.h"

#include <algorithm>
#include <iterator>

#include "src/field/tiles.h"

namespace orvane {
namespace {

constexpr int kStep = 4;

// Positions of the feet beyond which no step leads on.
constexpr int kLowest = 17;
constexpr int kHighestX = 463;
constexpr int kHighestY = 249;

// Positions of the feet that are at an edge, and how far a change of maps shifts them.
constexpr int kTopEdge = 17;
constexpr int kBottomEdge = 240;
constexpr int kLeftEdge = 18;
constexpr int kRightEdge = 463;
constexpr int kVerticalShift = 210;
constexpr int kHorizontalShift = 447;

// The hidden map takes the place of its neighbour in the grid.
constexpr int kHiddenColumn = 6;
constexpr int kHiddenNeighbour = 5;
constexpr int kHiddenRow = 4;

// Where one stands behind a door.
constexpr int kRoomX = 232;
constexpr int kRoomY = 224;

// One direction: its tile, whether the feet may go on, and the way of a step.
struct Way {
  int Tile;
  bool WithinLimit;
  int X;
  int Y;
};

Way WayOf(const Surroundings& around, const Party& party, Direction direction) {
  switch (direction) {
    case Direction::Up:
      return {around.Up, party.Y > kLowest, 0, -kStep};
    case Direction::Down:
      return {around.Down, party.Y < kHighestY, 0, kStep};
    case Direction::Left:
      return {around.Left, party.X > kLowest, -kStep, 0};
    case Direction::Right:
      break;
  }
  return {around.Right, party.X < kHighestX, kStep, 0};
}

Room RoomBehind(int door, const WalkRules& rules, const Party& party) {
  if (door == kLastBookDoor) return kLastBookRoom;
  const MapId grid{party.MapA, party.MapB};
  const bool spring =
      std::find(std::begin(kSpringMaps), std::end(kSpringMaps), grid) != std::end(kSpringMaps);
  return spring ? kSpringRoom : BookRoom(rules.Round);
}

void GoThrough(int door, const WalkRules& rules, Party& party) {
  party.Inside = RoomBehind(door, rules, party);
  party.InBook = true;
  party.ReturnX = party.X;
  party.ReturnY = party.Y;
  party.X = kRoomX;
  party.Y = kRoomY;
}

// From the hidden map one walks on as from its neighbour.
void CountFromNeighbour(Party& party) {
  if (party.MapA == kHiddenColumn) party.MapA = kHiddenNeighbour;
}

void LookForHiddenMap(const WalkRules& rules, Party& party) {
  const bool its_place = party.MapA == kHiddenNeighbour && party.MapB == kHiddenRow;
  if (its_place && rules.NineTechniques) party.MapA = kHiddenColumn;
}

void ChangeRow(const WalkRules& rules, Party& party, int step) {
  CountFromNeighbour(party);
  party.MapB += step;
  LookForHiddenMap(rules, party);
  party.Y -= step * kVerticalShift;
}

void LeaveRoom(Party& party) {
  party.X = party.ReturnX;
  party.Y = party.ReturnY;
  party.InBook = false;
  party.ReturnX = party.ReturnY = 0;
}

bool InStrip(const Party& party, int lowest_y) {
  return party.X >= 224 && party.X <= 240 && party.Y <= lowest_y;
}

}  // namespace

Surroundings LookAround(const MapTiles& tiles, int x, int y) {
  const int column = Quotient(x, kTileSize);
  const int row = Quotient(y, kTileSize);
  return {tiles[column][row], tiles[column][row - 1], tiles[column][row + 1],
          tiles[column - 1][row], tiles[column + 1][row]};
}

StepTaken TryStep(const Surroundings& around, const WalkRules& rules, const Party& party,
                  Direction direction) {
  const Way way = WayOf(around, party, direction);
  if (!IsWalkable(around.Here) || !IsWalkable(way.Tile) || !way.WithinLimit) {
    return {false, false, party, party};
  }
  StepTaken step{true, direction == Direction::Up && IsDoor(way.Tile), party, party};
  if (step.ThroughDoor) GoThrough(way.Tile, rules, step.Before);
  step.After = step.Before;
  step.After.X += way.X;
  step.After.Y += way.Y;
  return step;
}

std::optional<Party> CrossEdge(const WalkRules& rules, const Party& party) {
  Party next = party;
  next.Inside = kNoRoom;
  if (party.Y <= kTopEdge) {
    ChangeRow(rules, next, -1);
  } else if (party.Y >= kBottomEdge && !party.InBook) {
    ChangeRow(rules, next, 1);
  } else if (party.Y >= kBottomEdge) {
    LeaveRoom(next);
  } else if (party.X < kLeftEdge) {
    CountFromNeighbour(next);
    next.MapA -= 1;
    next.X += kHorizontalShift;
  } else if (party.X >= kRightEdge) {
    next.MapA += 1;
    LookForHiddenMap(rules, next);
    next.X -= kHorizontalShift;
  } else {
    return std::nullopt;
  }
  return next;
}

bool BeforeDragon(const Party& party) {
  return party.MapA == 4 && party.MapB == 1 && InStrip(party, 116);
}

bool BeforeLastDragon(const Party& party) {
  return InStrip(party, 48);
}

}  // namespace orvane
