// The notes of a MIDI file with their times, for the checks and the pictures.
#pragma once

#include <string>
#include <vector>

#include "tools/music/midi_file.h"

namespace orvane::music {

// A note that sounds from `start` to `end`, in ticks; `end` is -1 while nothing has ended it.
struct FileNote {
  int Start = 0;
  int End = -1;
  int Pitch = 0;
  int Velocity = 0;
  int Channel = 0;
  size_t Track = 0;
};

// Tempo from a tick on, in quarters a minute.
struct TempoMark {
  int Tick = 0;
  double Tempo = 120;
};

// A text or a key at a tick.
struct Mark {
  int Tick = 0;
  std::string Text;
};

struct PieceNotes {
  std::vector<FileNote> Notes;      // by start
  std::vector<TempoMark> Tempos;    // by tick
  std::vector<Mark> sections;       // markers
  std::vector<Mark> keys;           // "2 sharps major" and the like
  std::vector<std::string> Names;   // of the tracks
  std::vector<int> Programs;        // of the tracks, -1 for none
  std::vector<std::string> Faults;  // notes on twice, never ended, or ended without a start
  int BarTicks = 1920;              // of the first meter
  int End = 0;                      // the longest track's end

  // Seconds from the start to a tick.
  double Seconds(int tick) const;

  int TicksPerQuarter = 480;
};

// Pairs the note-ons of the file with their ends.
PieceNotes CollectNotes(const MidiFile& file);

}  // namespace orvane::music
