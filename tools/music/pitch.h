// Names of pitches and keys.
#pragma once

#include <cstddef>
#include <stdexcept>
#include <string>
#include <string_view>

namespace orvane::music {

// What is wrong with a score, with the number of the line that it stands on.
class ScoreError : public std::runtime_error {
 public:
  ScoreError(int line, const std::string& what)
      : std::runtime_error("line " + std::to_string(line) + ": " + what) {}
};

// Reads a pitch name at `at` in `text`, a letter a to g or A to G with an optional # or b, and
// moves `at` behind it. Gives 0 (c) to 11 (b), or -1, with `at` unmoved, where no name stands.
// "cb" gives -1 + 12 = 11, "b#" gives 0: the octave of such names is the letter's own.
int ReadPitchClass(std::string_view text, size_t& at);

// The semitone of a letter with its accidental counted from the c below it, -1 (cb) to 12 (b#);
// throws std::invalid_argument where no name stands. Moves `at` behind the name.
int ReadSemitone(std::string_view text, size_t& at);

// A pitch with a number for the octave, as "c4" (middle C, 60) or "f#3"; throws
// std::invalid_argument for anything else or outside 0 to 127.
int ReadPitch(std::string_view text);

// "C4" for 60, "F#3" for 54.
std::string PitchName(int pitch);

// A key as the MIDI file's key signature wants it: sharps above 0, flats below, -7 to 7.
struct Key {
  std::string Name = "C major";
  int Sharps = 0;
  bool Minor = false;
  int Tonic = 0;  // 0 (c) to 11 (b)
};

// Reads "D major" or "F# minor"; throws std::invalid_argument for anything else.
Key ReadKey(std::string_view tonic, std::string_view mode);

}  // namespace orvane::music
