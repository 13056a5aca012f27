// Map files: 480 tile codes in text, column after column.
#pragma once

#include <string>
#include <string_view>

#include "src/core/map.h"
#include "src/platform/storage.h"

namespace orvane {

// Reads 480 numbers off a text, separated by commas, blanks and line ends; what follows is ignored.
// Throws RunError with the file's name: File when the text ends too early, Type for a word that is
// no number, Overflow for a number beyond 16 bits. What was read until then stands in the tiles.
void ReadMapText(std::string_view text, const std::string& file, MapTiles& tiles);

// The same for a map's file; RunError(File) too when it is missing.
void ReadMapFile(const Storage& files, const MapId& map, MapTiles& tiles);

}  // namespace orvane
