// The score written out in the order of its form: every note with its place, pitch and loudness.
#pragma once

#include <vector>

#include "tools/music/score.h"

namespace orvane::music {

enum class Touch { Plain, Staccato, Tenuto, Slurred };

// One note as written, before the player's freedom. Ticks count from the start of the piece.
struct Note {
  int Start = 0;
  int Length = 0;
  int Pitch = 0;
  double Loudness = 74;  // the dynamic as a velocity, 1 to 127
  int Stress = 0;        // added for an accent
  Touch touch = Touch::Plain;
  int line = 0;  // of the score, for messages
};

// A dynamic that holds, or grows from `from` to `to`, over [start, end).
struct Dynamic {
  int Start = 0;
  int End = 0;
  double From = 74;
  double To = 74;
};

// A slur: one breath over [start, end).
struct Phrase {
  int Start = 0;
  int End = 0;
};

// All that one part plays, in the order of time.
struct PartSheet {
  std::vector<Note> Notes;
  std::vector<Dynamic> Dynamics;
  std::vector<Phrase> Phrases;
};

// A section at its place.
struct PlacedSection {
  const Section* section = nullptr;
  int Start = 0;
  int End = 0;
};

struct PlacedChord {
  int Start = 0;
  int End = 0;
  Chord chord;
};

// `parts` goes with the score's parts; `score` must outlive the sheet.
struct Sheet {
  const Score* score = nullptr;
  std::vector<PlacedSection> sections;
  std::vector<PlacedChord> chords;
  std::vector<PartSheet> Parts;
  int End = 0;
};

// Writes the score out; throws ScoreError for bars of a wrong length and for tokens that are not
// part of the notation.
Sheet WriteOut(const Score& score);

}  // namespace orvane::music
