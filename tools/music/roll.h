// Piano rolls as pictures.
#pragma once

#include <string>

#include "tools/music/piece_notes.h"

namespace orvane::music {

// The whole piece as the bytes of a PNG file: rows of 16 bars, time to the right, pitch upward, a
// colour for each track, brighter with velocity; section starts are bright lines, bars are dark
// ones.
std::string DrawRoll(const PieceNotes& piece);

}  // namespace orvane::music
