// The maps in memory: their tiles, and which of them there are.
#pragma once

#include <compare>
#include <string>

#include "src/base/array.h"
#include "src/base/integer.h"

namespace orvane {

constexpr int kMapColumns = 30;
constexpr int kMapRows = 16;
constexpr int kTileSize = 16;  // pixels

// Whether a tile is of the wastes, where battles show their second background.
bool IsWasteGround(int tile);

// Tile codes by column, then row; the last of each is spare.
using MapTiles = Array<Array<Int16, kMapRows + 1>, kMapColumns + 1>;

// A room behind a door, or none.
struct Room {
  enum class Kind { Nowhere, Spring, Book, LastBook };
  Kind What = Kind::Nowhere;
  int Round = 0;  // of a book room, of which every round has its own
  auto operator<=>(const Room&) const = default;
};

constexpr Room kNoRoom{};
constexpr Room kSpringRoom{Room::Kind::Spring};
constexpr Room kLastBookRoom{Room::Kind::LastBook};
constexpr Room BookRoom(int round) {
  return {Room::Kind::Book, round};
}

// One map: a place of the grid by its column (MapA) and row (MapB), or a room, for which both are
// 0.
struct MapId {
  int MapA = 0;
  int MapB = 0;
  Room Inside{};
  auto operator<=>(const MapId&) const = default;
};

// "map<MapB>-<MapA>", the row first, or a room's name: "Fresh", "Book<Round>", "BookF".
std::string MapName(const MapId& map);

// A map's file in the game folder.
std::string MapFile(const MapId& map);

}  // namespace orvane
