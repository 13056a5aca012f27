// The rules that can be read off the maps without walking.
#include <algorithm>
#include <iterator>
#include <span>

#include "src/field/pickups.h"
#include "src/field/tiles.h"
#include "tools/maps/check.h"

namespace orvane::maps {
namespace {

// Whether the game has one of its chests on a map.
bool Among(const MapId& place, std::span<const Find> finds) {
  return std::any_of(finds.begin(), finds.end(), [&](const Find& find) {
    return place == MapId{find.MapA, find.MapB};
  });
}

bool IsSpringMap(const MapId& place) {
  return std::find(std::begin(kSpringMaps), std::end(kSpringMaps), place) != std::end(kSpringMaps);
}

class DrawingCheck {
 public:
  explicit DrawingCheck(const World& world) : world_(world) {}

  std::vector<Fault> Run() {
    for (const auto& [place, map] : world_.Maps) {
      CheckCodes(place, map);
      CheckChests(place, map);
      CheckOpenSides(place, map);
    }
    CheckDoors();
    CheckBorders();
    return faults_;
  }

 private:
  void Add(FaultKind kind, const std::string& what) { faults_.push_back({kind, what}); }

  void CheckCodes(const MapId& place, const TileMap& map) {
    for (int column = 0; column < kMapColumns; ++column) {
      for (int row = 0; row < kMapRows; ++row) {
        const int code = map.At(column, row);
        if (code >= 1 && code <= kHighestTile) continue;
        Add(FaultKind::BadCode, "code " + std::to_string(code) + Cell(place, column, row));
      }
    }
  }

  static std::string Cell(const MapId& place, int column, int row) {
    return " on " + PlaceName(place) + " at column " + std::to_string(column) + ", row " +
           std::to_string(row);
  }

  template <typename Test>
  static int Count(const TileMap& map, Test test) {
    int count = 0;
    for (int column = 0; column < kMapColumns; ++column) {
      for (int row = 0; row < kMapRows; ++row) count += test(map.At(column, row)) ? 1 : 0;
    }
    return count;
  }

  void CheckChests(const MapId& place, const TileMap& map) {
    const int chests = Count(map, [](int code) { return code == kChest; });
    if (chests != (Among(place, Treasures()) ? 1 : 0)) {
      Add(FaultKind::Furniture, std::to_string(chests) + " chests on " + PlaceName(place));
    }
    const int cells = Count(map, IsBookChest);
    if (cells != (Among(place, Books()) ? 4 : 0)) {
      Add(FaultKind::Furniture,
          std::to_string(cells) + " cells of book chests on " + PlaceName(place));
    } else if (cells == 4 && !HasWholeBook(map)) {
      Add(FaultKind::Furniture, "the book chest on " + PlaceName(place) + " is not in one piece");
    }
  }

  static bool HasWholeBook(const TileMap& map) {
    for (int column = 0; column < kMapColumns; ++column) {
      for (int row = 0; row < kMapRows; ++row) {
        if (map.At(column, row) == kBookTopLeft && map.At(column + 1, row) == kBookTopRight &&
            map.At(column, row + 1) == kBookBottomLeft &&
            map.At(column + 1, row + 1) == kBookBottomRight) {
          return true;
        }
      }
    }
    return false;
  }

  void CheckDoors() {
    int last_doors = 0;
    int book_maps = 0;
    for (const auto& [place, map] : world_.Maps) {
      const int doors = Count(map, IsDoor);
      const int room_doors = Count(map, IsRoomDoor);
      last_doors += doors - room_doors;
      const bool spring = IsSpringMap(place);
      if (room_doors > 0 && !spring) ++book_maps;
      if (spring && room_doors == 0) {
        Add(FaultKind::Furniture, "no door to the spring room on " + PlaceName(place));
      }
      const bool barred = place.Inside != kNoRoom || place == kDragonMap || place == kLastStage;
      if (barred && doors > 0) Add(FaultKind::Furniture, "a door on " + PlaceName(place));
    }
    if (last_doors != 1) {
      Add(FaultKind::Furniture,
          std::to_string(last_doors) + " doors to the last book's room, not 1");
    }
    if (book_maps == 0) Add(FaultKind::Furniture, "no door leads to the rounds' book rooms");
  }

  // One of the four border lines of a map: 0 top, 1 bottom, 2 left, 3 right.
  static std::vector<int> Line(const TileMap& map, int side) {
    std::vector<int> codes;
    const int length = side < 2 ? kMapColumns : kMapRows;
    for (int at = 0; at < length; ++at) {
      if (side < 2) {
        codes.push_back(map.At(at, side == 0 ? 0 : kMapRows - 1));
      } else {
        codes.push_back(map.At(side == 2 ? 0 : kMapColumns - 1, at));
      }
    }
    return codes;
  }

  void DemandClosed(const MapId& place, const TileMap& map, int side) {
    constexpr const char* sides[] = {"top", "bottom", "left", "right"};
    const std::vector<int> codes = Line(map, side);
    if (std::any_of(codes.begin(), codes.end(), IsWalkable)) {
      Add(FaultKind::OpenBorder, PlaceName(place) + " is open at its " + sides[side]);
    }
  }

  void CheckOpenSides(const MapId& place, const TileMap& map) {
    const bool room = place.Inside != kNoRoom;
    const bool last = place == kLastStage;
    if (room || last || place.MapB == 1) DemandClosed(place, map, 0);
    if (last || (!room && place.MapB == 5)) DemandClosed(place, map, 1);
    if (room || last || place.MapA == 1) DemandClosed(place, map, 2);
    if (room || last || place.MapA == 5 || place == kHiddenMap) DemandClosed(place, map, 3);
    if (!room) return;
    const std::vector<int> bottom = Line(map, 1);
    if (std::none_of(bottom.begin(), bottom.end(), IsWalkable)) {
      Add(FaultKind::Unreachable, PlaceName(place) + " has no way out at its bottom");
    }
  }

  void DemandMatch(const MapId& one, int side, const MapId& other, int other_side) {
    const TileMap* map = world_.Find(one);
    const TileMap* other_map = world_.Find(other);
    if (map == nullptr || other_map == nullptr) {
      Add(FaultKind::NoSuchMap, PlaceName(map == nullptr ? one : other) + " is missing");
      return;
    }
    const std::vector<int> codes = Line(*map, side);
    const std::vector<int> other_codes = Line(*other_map, other_side);
    for (size_t at = 0; at < codes.size(); ++at) {
      if (IsWalkable(codes[at]) == IsWalkable(other_codes[at])) continue;
      Add(FaultKind::Border, PlaceName(one) + " and " + PlaceName(other) + " do not match at " +
                                 (side < 2 ? "column " : "row ") + std::to_string(at));
    }
  }

  void CheckBorders() {
    for (int map_b = 1; map_b <= 5; ++map_b) {
      for (int map_a = 1; map_a <= 5; ++map_a) {
        if (map_a < 5) DemandMatch({map_a, map_b}, 3, {map_a + 1, map_b}, 2);
        if (map_b < 5) DemandMatch({map_a, map_b}, 1, {map_a, map_b + 1}, 0);
      }
    }
    DemandMatch({4, 4}, 3, kHiddenMap, 2);
    DemandMatch({5, 3}, 1, kHiddenMap, 0);
    DemandMatch(kHiddenMap, 1, {5, 5}, 0);
  }

  const World& world_;
  std::vector<Fault> faults_;
};

}  // namespace

std::vector<Fault> CheckDrawing(const World& world) {
  return DrawingCheck(world).Run();
}

const char* KindName(FaultKind kind) {
  switch (kind) {
    case FaultKind::BadCode:
      return "bad code";
    case FaultKind::Border:
      return "borders do not match";
    case FaultKind::OpenBorder:
      return "open border";
    case FaultKind::Furniture:
      return "chests and doors";
    case FaultKind::Unreachable:
      return "out of reach";
    case FaultKind::DeadEnd:
      return "stuck";
    case FaultKind::Trap:
      return "trap";
    case FaultKind::FlipFlop:
      return "flip-flop";
    case FaultKind::NoSuchMap:
      return "no such map";
    case FaultKind::WrongExit:
      return "wrong exit";
    case FaultKind::FarFromRecovery:
      return "far from recovery";
  }
  return "";
}

}  // namespace orvane::maps
