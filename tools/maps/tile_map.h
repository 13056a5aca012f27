// One map to work on, and its text file.
#pragma once

#include <string>
#include <string_view>

#include "src/core/map.h"
#include "src/field/tiles.h"

namespace orvane::maps {

constexpr int kCells = kMapColumns * kMapRows;

// A whole screen of tile codes. Column 0 is the left one, row 0 the top one.
class TileMap {
 public:
  TileMap() = default;
  explicit TileMap(const MapTiles& tiles) : tiles_(tiles) {}

  // The code at a cell. Outside of the map it is 0, which blocks.
  int At(int column, int row) const { return Inside(column, row) ? int{tiles_[column][row]} : 0; }

  // Sets a cell; a cell outside of the map is left alone.
  void Set(int column, int row, int code) {
    if (Inside(column, row)) tiles_[column][row] = code;
  }

  // The map as the game holds it.
  const MapTiles& Tiles() const { return tiles_; }

  bool operator==(const TileMap&) const = default;

  static bool Inside(int column, int row) {
    return column >= 0 && column < kMapColumns && row >= 0 && row < kMapRows;
  }

 private:
  MapTiles tiles_;
};

// The text of a game map file: one line for each column, its 16 codes separated by commas.
std::string WriteDat(const TileMap& map);

// Reads a game map file as the game does. Throws std::runtime_error on a file that is too short or
// holds anything but numbers of 16 bits before the 480th.
TileMap ReadDat(std::string_view text);

}  // namespace orvane::maps
