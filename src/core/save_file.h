// Save files: one game record of 540 bytes.
#pragma once

#include <string>
#include <string_view>

#include "src/core/game_record.h"
#include "src/ui/control.h"

namespace orvane {

struct Game;

constexpr size_t kSaveFileSize = 540;

// The record as a save file holds it: little-endian numbers, CP932 text padded with blanks.
std::string PackRecord(const GameRecord& record);

// Reads a record from a save file's bytes. Missing bytes count as zeros, and as blanks in text;
// what is too much is ignored. Nothing is validated.
void UnpackRecord(std::string_view bytes, GameRecord& record);

// Writes the game's record into a file of the game folder; what a longer file holds behind the
// record stays. `then` follows once the bytes last. A file that cannot be written ends the program
// with what the system says.
void WriteSave(Game& game, const std::string& file, const Handler& then);

}  // namespace orvane
