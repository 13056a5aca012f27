// Chord symbols and the way that an accompaniment voices them.
#pragma once

#include <string_view>
#include <vector>

namespace orvane::music {

// A chord as its pitch classes, from the root upward, and the bass below it.
struct Chord {
  int Root = 0;            // 0 (c) to 11 (b)
  int Bass = 0;            // the root, or the note behind the slash
  std::vector<int> Steps;  // semitones above the root, from 0: root, third, fifth, more

  // Semitones above the root of the third (or what is suspended in its place), the fifth, and the
  // fourth tone; without a fourth tone Seventh() is 12.
  int Third() const;
  int Fifth() const;
  int Seventh() const;
};

// Reads a symbol such as "D", "F#m7", "Bbmaj7", "G/B"; the qualities are those of the table in
// chord.cpp. Throws std::invalid_argument for anything else.
Chord ReadChord(std::string_view symbol);

// The chord moved by semitones.
Chord Transposed(Chord chord, int semitones);

// The close-position voicing, lowest pitch first, whose lowest tone is not below `floor` and not
// an octave or more above it, that moves least from `previous` (empty: the one that starts nearest
// to the floor). `voices` caps the number of tones: the fifth is left out first, then the root.
std::vector<int> Voice(const Chord& chord, int floor, int voices, const std::vector<int>& previous);

}  // namespace orvane::music
