// What must be true of every piece.
#pragma once

#include <string>
#include <vector>

#include "tools/music/piece_notes.h"

namespace orvane::music {

// Most notes that may sound at once.
constexpr int kMostVoices = 24;

// How long a piece may last before it repeats, in seconds.
struct Span {
  double Least = 0;
  double Most = 0;
};

// The span of a piece by its name, such as "Round1"; a piece that is not one of the game's:
// anything.
Span SpanOf(const std::string& name);

// Every fault of the file, in words; empty for a sound one. Looks at format, length, both ends,
// keys and tempo at the loop, ranges, voices, and notes that are stuck or overlap.
std::vector<std::string> CheckPiece(const std::string& name, const MidiFile& file);

// The most notes that sound at once.
int Voices(const PieceNotes& piece);

// Stretches of an eighth or more in which two pitched parts stand a minor second or a minor ninth
// apart: to be looked at by the composer, not a fault by itself.
std::vector<std::string> Frictions(const PieceNotes& piece);

// Key, tempo, form, instruments and density, a line each.
std::string Describe(const std::string& name, const PieceNotes& piece);

}  // namespace orvane::music
