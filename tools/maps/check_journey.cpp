// The rules that are proved by walking.
#include <algorithm>
#include <set>
#include <tuple>

#include "src/field/tiles.h"
#include "tools/maps/check.h"

namespace orvane::maps {
namespace {

constexpr int kMapsToRecovery = 2;
constexpr auto kUp = static_cast<size_t>(Direction::Up);
constexpr auto kDown = static_cast<size_t>(Direction::Down);

std::string Where(const Party& party) {
  const MapId grid{party.MapA, party.MapB};
  std::string where = PlaceName(party.Map());
  if (party.Inside != kNoRoom) where += " behind the door on " + PlaceName(grid);
  return where + " at " + std::to_string(party.X) + ", " + std::to_string(party.Y);
}

MapId GridOf(const Party& party) {
  return {party.MapA, party.MapB};
}

struct Cell {
  MapId Place;
  int Column;
  int Row;
  bool operator==(const Cell&) const = default;
  bool operator<(const Cell& other) const {
    return std::tie(Place, Column, Row) < std::tie(other.Place, other.Column, other.Row);
  }
};

class JourneyCheck {
 public:
  JourneyCheck(const World& world, const Exploration& exploration)
      : world_(world), exploration_(exploration), rules_(exploration.journey.Rules) {}

  std::vector<Fault> Run() {
    for (const Stand& stand : exploration_.Stands) Visit(stand);
    CheckGoals();
    CheckTraps();
    CheckRecovery();
    return faults_;
  }

 private:
  // One fault of a kind for each ground is enough to find the place; more would bury the rest.
  void Add(FaultKind kind, const MapId& place, const std::string& what) {
    if (!named_.emplace(kind, place).second) return;
    faults_.push_back({kind, exploration_.journey.Name + ": " + what});
  }

  const Party& At(int32_t number) const {
    return exploration_.Stands[static_cast<size_t>(number)].party;
  }

  void Visit(const Stand& stand) {
    const Party& party = stand.party;
    const MapId ground = party.Map();
    const int tile = TileUnder(world_, party);
    if (!IsWalkable(tile)) {
      Add(FaultKind::DeadEnd, ground,
          "stuck on tile " + std::to_string(tile) + ": " + Where(party));
    }
    const Cell cell{ground, party.X / kTileSize, party.Y / kTileSize};
    if (cell != last_cell_) cells_.insert(cell);  // neighbours in the search often share a cell
    last_cell_ = cell;
    if (tile == kRecovery) recovery_.insert(GridOf(party));
    if (party.InBook && party.Inside == kNoRoom) {
      Add(FaultKind::WrongExit, ground, "left a room over its wall: " + Where(party));
    }
    if (rules_.LastStage && ground != kLastStage) {
      Add(FaultKind::WrongExit, ground, "left the last stage: " + Where(party));
    }
    VisitWays(stand);
  }

  void VisitWays(const Stand& stand) {
    const Party& party = stand.party;
    int ways = 0;
    int turning = 0;
    for (size_t way = 0; way < 4; ++way) {
      const int32_t next = stand.Next[way];
      if (next == kToDragon) dragon_ = true;
      if (next == kToNowhere) {
        Add(rules_.LastStage ? FaultKind::WrongExit : FaultKind::NoSuchMap, party.Map(),
            "a step leads to no map: " + Where(party));
      }
      if (next < 0) continue;
      ++ways;
      const Party& there = At(next);
      if (party.InBook || there.InBook) {
        VisitDoor(party, there, way);
        continue;
      }
      if (GridOf(there) == GridOf(party)) continue;
      ++turning;
      ways_between_maps_.emplace(GridOf(party), GridOf(there));
      if ((way == kUp || way == kDown) && there.MapB == party.MapB) {
        Add(FaultKind::FlipFlop, party.Map(),
            "a step up or down goes to the map beside: " + Where(party));
      }
    }
    if (ways > 0 && ways == turning) {
      Add(FaultKind::FlipFlop, party.Map(), "every step leaves the map: " + Where(party));
    }
  }

  void VisitDoor(const Party& party, const Party& there, size_t way) {
    if (there.InBook && !party.InBook) {
      entered_.insert({GridOf(party), party.X / kTileSize, party.Y / kTileSize - 1});
      rooms_.emplace(there.Inside, GridOf(party));
    } else if (!there.InBook && way == kDown) {
      left_.emplace(party.Inside, GridOf(party));
    }
  }

  // True for a map that this journey cannot come to by the rules of the game.
  bool OutOfJourney(const MapId& place) const {
    if (rules_.LastStage) return place != kLastStage;
    if (place == kLastStage) return true;
    return place == (rules_.NineTechniques ? kSwappedMap : kHiddenMap);
  }

  void Demand(bool reached, const MapId& place, const std::string& what) {
    if (reached) return;
    faults_.push_back({FaultKind::Unreachable, exploration_.journey.Name + ": cannot reach " +
                                                   what + " of " + PlaceName(place)});
  }

  void CheckGoals() {
    for (const auto& [place, map] : world_.Maps) {
      if (place.Inside == kNoRoom && !OutOfJourney(place)) CheckGoalsOn(place, map);
    }
    for (const auto& [room, place] : rooms_) {
      Demand(left_.count({room, place}) > 0, MapId{0, 0, room}, "the exit");
      const TileMap* map = world_.Find({0, 0, room});
      if (map != nullptr) CheckCells({0, 0, room}, *map);
    }
    if (rules_.LastStage) {
      Demand(dragon_, kLastStage, "the last dragon");
    } else {
      Demand(dragon_, kDragonMap, "the dragon");
    }
  }

  void CheckGoalsOn(const MapId& place, const TileMap& map) {
    const bool any = std::any_of(cells_.begin(), cells_.end(),
                                 [&](const Cell& cell) { return cell.Place == place; });
    Demand(any, place, "any spot");
    CheckCells(place, map);
    bool book = false;
    bool book_reached = false;
    for (int column = 0; column < kMapColumns; ++column) {
      for (int row = 0; row < kMapRows; ++row) {
        const int code = map.At(column, row);
        if (IsDoor(code)) Demand(entered_.count({place, column, row}) > 0, place, "the door");
        book = book || IsBookChest(code);
        book_reached =
            book_reached || (IsBookChest(code) && cells_.count({place, column, row}) > 0);
      }
    }
    Demand(!book || book_reached, place, "the book chest");
  }

  // Chests and recovery points, on a map or in a room.
  void CheckCells(const MapId& place, const TileMap& map) {
    for (int column = 0; column < kMapColumns; ++column) {
      for (int row = 0; row < kMapRows; ++row) {
        const int code = map.At(column, row);
        const bool reached = cells_.count({place, column, row}) > 0;
        if (code == kChest) Demand(reached, place, "the chest");
        if (code == kRecovery) Demand(reached, place, "the recovery point");
      }
    }
  }

  void CheckTraps() {
    const std::vector<bool> can = CanReturn(exploration_);
    for (size_t number = 0; number < can.size(); ++number) {
      const Party& party = exploration_.Stands[number].party;
      if (can[number] || AtDragon(rules_, party)) continue;
      Add(FaultKind::Trap, party.Map(), "no way back to the start: " + Where(party));
    }
  }

  void CheckRecovery() {
    std::set<MapId> near = recovery_;
    for (int maps = 0; maps < kMapsToRecovery; ++maps) {
      std::set<MapId> nearer = near;
      for (const auto& [from, to] : ways_between_maps_) {
        if (near.count(to) > 0) nearer.insert(from);
      }
      near = nearer;
    }
    for (const Cell& cell : cells_) {
      if (cell.Place.Inside != kNoRoom || near.count(cell.Place) > 0) continue;
      Add(FaultKind::FarFromRecovery, cell.Place,
          "more than two maps to a recovery point from " + PlaceName(cell.Place));
    }
  }

  const World& world_;
  const Exploration& exploration_;
  const WalkRules rules_;
  std::vector<Fault> faults_;
  std::set<std::pair<FaultKind, MapId>> named_;
  std::set<Cell> cells_;  // every cell that the party can stand on
  Cell last_cell_{{-1, -1}, 0, 0};
  std::set<Cell> entered_;  // every door that the party can go through
  std::set<std::pair<Room, MapId>> rooms_;
  std::set<std::pair<Room, MapId>> left_;
  std::set<MapId> recovery_;
  std::set<std::pair<MapId, MapId>> ways_between_maps_;
  bool dragon_ = false;
};

}  // namespace

std::vector<Fault> CheckJourney(const World& world, const Exploration& exploration) {
  return JourneyCheck(world, exploration).Run();
}

std::vector<Fault> CheckWorld(const World& world) {
  std::vector<Fault> faults = CheckDrawing(world);
  for (const Journey& journey : AllJourneys()) {
    const std::vector<Fault> more = CheckJourney(world, Explore(world, journey));
    faults.insert(faults.end(), more.begin(), more.end());
  }
  return faults;
}

}  // namespace orvane::maps
