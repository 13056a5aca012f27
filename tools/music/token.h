// One token of a bar: a note, a chord, a rest, or a mark.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "tools/music/sheet.h"

namespace orvane::music {

enum class ToneKind { Pitch, Voice, Bass };

// A tone as written: a pitch of the scale, the n-th voice of the chord (@n), or a tone of the
// chord for a bass (R, T, F or S).
struct Tone {
  ToneKind Kind = ToneKind::Pitch;
  int Semitone = 0;  // of a pitch, above the c of its octave
  int Voice = 0;     // of a voice, from 1
  char Degree = 0;   // of a bass tone
  int Octaves = 0;   // up, by the marks
};

struct Token {
  std::vector<Tone> Tones;   // none: a rest
  bool whole_chord = false;  // *: every voice of the chord
  int Length = 0;            // ticks; 0: as the token before
  bool OpensSlur = false;
  bool ClosesSlur = false;
  bool Tied = false;
  int Stress = 0;
  Touch touch = Touch::Plain;
};

// Reads a token of notes; throws std::invalid_argument for anything else.
Token ReadToken(std::string_view text);

// The velocity of a dynamic from "ppp" to "fff"; throws std::invalid_argument for others.
double ReadDynamic(std::string_view name);

// Takes the groups {...}n of a bar apart, so that only single tokens remain; throws
// std::invalid_argument where braces do not match.
std::vector<std::string> Unfolded(const std::vector<std::string>& tokens);

}  // namespace orvane::music
