// The notes of a MIDI file with their times, for the checks and the pictures.
#pragma once

#include <string>
#include <vector>

#include "tools/music/midi_file.h"

namespace orvane::music {

// A note that sounds from `start` to `end`, in ticks; `end` is -1 while nothing has ended it.
struct FileNote {
  int start = 0;
  int end = -1;
  int pitch = 0;
  int velocity = 0;
  int channel = 0;
  size_t track = 0;
};

// Tempo from a tick on, in quarters a minute.
struct TempoMark {
  int tick = 0;
  double tempo = 120;
};

// A text or a key at a tick.
struct Mark {
  int tick = 0;
  std::string text;
};

struct PieceNotes {
  std::vector<FileNote> notes;      // by start
  std::vector<TempoMark> tempos;    // by tick
  std::vector<Mark> sections;       // markers
  std::vector<Mark> keys;           // "2 sharps major" and the like
  std::vector<std::string> names;   // of the tracks
  std::vector<int> programs;        // of the tracks, -1 for none
  std::vector<std::string> faults;  // notes on twice, never ended, or ended without a start
  int bar_ticks = 1920;             // of the first meter
  int end = 0;                      // the longest track's end

  // Seconds from the start to a tick.
  double Seconds(int tick) const;

  int ticks_per_quarter = 480;
};

// Pairs the note-ons of the file with their ends.
PieceNotes CollectNotes(const MidiFile& file);

}  // namespace orvane::music
