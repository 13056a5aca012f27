// One map as the game reads it: 30 columns of 16 tile codes, and its text file.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace orvane::maps {

constexpr int kColumns = 30;
constexpr int kRows = 16;
constexpr int kCells = kColumns * kRows;
constexpr int kHighestCode = 240;  // codes 1 to 240 are drawn, 0 leaves its cell alone

// A whole screen of tile codes. Column 0 is the left one, row 0 the top one.
class TileMap {
 public:
  // The code at a cell. Outside of the map it is 0, which blocks.
  int At(int column, int row) const { return Inside(column, row) ? codes_[Index(column, row)] : 0; }

  // Sets a cell; a cell outside of the map is left alone.
  void Set(int column, int row, int code) {
    if (Inside(column, row)) codes_[Index(column, row)] = code;
  }

  bool operator==(const TileMap&) const = default;

  static bool Inside(int column, int row) {
    return column >= 0 && column < kColumns && row >= 0 && row < kRows;
  }

 private:
  static size_t Index(int column, int row) {
    return static_cast<size_t>(column) * size_t{kRows} + static_cast<size_t>(row);
  }

  std::array<int, kCells> codes_{};
};

// The text of a game map file: one line for each column, its 16 codes separated by commas.
std::string WriteDat(const TileMap& map);

// Reads a game map file: 480 decimal numbers down the columns, separated by commas, blanks or line
// ends; what follows the last one is ignored, as the game does. Throws std::runtime_error on a file
// that is too short or holds anything but numbers before the 480th.
TileMap ReadDat(std::string_view text);

// A whole file as bytes; throws std::runtime_error when it cannot be read.
std::string ReadFile(const std::string& file);

// Writes a whole file; throws std::runtime_error when it cannot be written.
void WriteFile(const std::string& file, std::string_view text);

}  // namespace orvane::maps
