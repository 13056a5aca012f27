// Map files: 480 tile codes in text, column after column.
#pragma once

#include <string>

#include "src/core/shared_state.h"
#include "src/platform/storage.h"

namespace orvane {

constexpr int MapColumns = 30;
constexpr int MapRows = 16;
constexpr int TileSize = 16;

// The name of a grid map's file in the game folder: the row comes first.
std::string GridMapFile(int map_a, int map_b);

// Reads 480 numbers, separated by commas, blanks and line ends, into the map; what follows is
// ignored. Throws RunError: File when the file is missing or ends too early, Type for a word that
// is no number, Overflow for a number beyond 16 bits.
void ReadMapFile(const Storage& files, const std::string& name, SharedState& state);

}  // namespace orvane
