// A score as it stands in its file: parts, drum patterns, sections and the form; docs/music.md
// describes the notation.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "tools/music/chord.h"
#include "tools/music/instruments.h"
#include "tools/music/pitch.h"

namespace orvane::music {

// Ticks of a quarter note and of a whole note.
constexpr int kQuarter = 480;
constexpr int kWhole = 4 * kQuarter;

struct Meter {
  int Beats = 4;
  int Unit = 4;  // 2, 4, 8 or 16

  int BarTicks() const { return kWhole / Unit * Beats; }
  int BeatTicks() const { return kWhole / Unit; }
};

// One voice of the score on one channel.
struct Part {
  std::string Name;
  const Instrument* instrument = nullptr;
  int Channel = 0;   // 0 to 15, drums on 9
  int Home = 4;      // octave of a pitch without octave marks
  int Volume = 100;  // 0 to 127
  int Pan = 0;       // -63 left to 63 right
  int Reverb = 40;   // 0 to 127
  int Chorus = 0;    // 0 to 127
  int Feel = 4;      // most ticks that a note comes early or late
  int Vibrato = 0;   // modulation that long notes grow into, 0 to 127
  int Gate = 92;     // percent of its length that a plain note sounds
  int Roll = 0;      // ticks between the notes of a chord
  int touch = 0;     // added to every velocity
  int Floor = 55;    // lowest pitch of a chord voicing, and of a bass token
  int Voices = 4;    // most tones of a chord voicing
};

// One bar of a line: its tokens, and where it stands.
struct Bar {
  std::vector<std::string> Tokens;
  int line = 0;
};

// What a section holds for one part or for the chords.
struct Line {
  std::vector<Bar> Bars;
  bool Repeats = false;  // "..." at the end: repeated until the section is full
};

// Some bars of music with a name, that the form can use any number of times.
struct Section {
  std::string Name;
  int Bars = 0;
  Meter meter;
  Key key;
  double Tempo = 100;                 // quarters in a minute at the start
  double TempoEnd = 100;              // and at the end
  int Transpose = 0;                  // semitones, drums left alone
  std::map<std::string, Line> lines;  // by the part's name; "chords" for the chords
  int line = 0;
};

// One drum of a pattern: a cell is ' ' for nothing or one of o (soft), x, X (accent).
struct DrumRow {
  int key = 0;
  std::string Cells;
};

struct Score {
  std::string Name;
  std::string Title;
  Key key;
  double Tempo = 100;
  Meter meter;
  double Level = 0;  // dB added to every part: brings the pieces to one loudness
  int Poll = 0;  // milliseconds within which the player notices the end; half is cut off the end
  std::vector<Part> Parts;
  std::map<std::string, std::vector<DrumRow>> Patterns;
  std::map<std::string, Section> sections;
  std::vector<std::string> Form;
};

// Reads a score; throws ScoreError for whatever the notation does not allow.
Score ReadScore(std::string_view text);

}  // namespace orvane::music
