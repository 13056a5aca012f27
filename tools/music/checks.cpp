#include "tools/music/checks.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <map>

#include "tools/music/instruments.h"
#include "tools/music/pitch.h"

namespace orvane::music {
namespace {

constexpr int kDrumChannel = 9;

void CheckEnds(const MidiFile& file, const PieceNotes& piece, std::vector<std::string>& faults) {
  const int sixteenth = piece.TicksPerQuarter / 4;
  int last = 0;
  for (const FileNote& note : piece.Notes) last = std::max(last, note.End);
  if (piece.Notes.front().Start > sixteenth) faults.emplace_back("silence at the start");
  if (piece.End - last > sixteenth) faults.emplace_back("silence at the end");
  if (last > piece.End) faults.emplace_back("a note beyond the end");
  for (const MidiTrack& track : file.Tracks) {
    if (track.End != piece.End) faults.emplace_back("tracks of different lengths");
  }
  if (piece.keys.empty() || piece.keys.front().Text != piece.keys.back().Text) {
    faults.emplace_back("the key at the end is not that of the start");
  }
  const double ratio = piece.Tempos.back().Tempo / piece.Tempos.front().Tempo;
  if (ratio < 0.6 || ratio > 1.4) faults.emplace_back("the tempo at the end does not lead back");
}

void CheckRanges(const PieceNotes& piece, std::vector<std::string>& faults) {
  for (size_t track = 1; track < piece.Names.size(); ++track) {
    int low = 128;
    int high = -1;
    bool drums = false;
    for (const FileNote& note : piece.Notes) {
      if (note.Track != track) continue;
      low = std::min(low, note.Pitch);
      high = std::max(high, note.Pitch);
      drums = note.Channel == kDrumChannel;
    }
    if (high < 0) {
      faults.push_back(piece.Names[track] + " plays nothing");
      continue;
    }
    const Instrument* instrument = FindProgram(piece.Programs[track], drums);
    if (instrument == nullptr) {
      faults.push_back(piece.Names[track] + ": unknown instrument");
    } else if (low < instrument->Low || high > instrument->High) {
      faults.push_back(piece.Names[track] + ": " + PitchName(low) + " to " + PitchName(high) +
                       " leaves the range of " + std::string(instrument->Name));
    }
  }
}

std::string Fixed(double value) {
  const auto tenths = std::lround(value * 10);
  return std::to_string(tenths / 10) + "." + std::to_string(tenths % 10);
}

}  // namespace

Span SpanOf(const std::string& name) {
  struct Row {
    const char* Name = nullptr;
    Span span;
  };
  static constexpr std::array<Row, 8> table = {{{"Round1", {60, 120}},
                                                {"Round2", {60, 120}},
                                                {"Round3", {60, 120}},
                                                {"Battle1", {60, 180}},
                                                {"Boss", {60, 180}},
                                                {"LastBoss", {60, 240}},
                                                {"Doukutu", {60, 180}},
                                                {"Ending", {90, 240}}}};
  for (const Row& row : table) {
    if (name == row.Name) return row.span;
  }
  return {0, 3600};
}

int Voices(const PieceNotes& piece) {
  std::map<int, int> changes;
  for (const FileNote& note : piece.Notes) {
    ++changes[note.Start];
    --changes[note.End];
  }
  int now = 0;
  int most = 0;
  for (const auto& [tick, change] : changes) most = std::max(most, now += change);
  return most;
}

std::vector<std::string> CheckPiece(const std::string& name, const MidiFile& file) {
  const PieceNotes piece = CollectNotes(file);
  std::vector<std::string> faults = piece.Faults;
  if (file.Format != 1) faults.emplace_back("not of format 1");
  if (piece.Notes.empty() || piece.Tempos.empty()) {
    faults.emplace_back("no notes or no tempo");
    return faults;
  }
  if (piece.Tempos.front().Tick != 0) faults.emplace_back("no tempo at the start");
  const double seconds = piece.Seconds(piece.End);
  const Span span = SpanOf(name);
  if (seconds < span.Least || seconds > span.Most) {
    faults.push_back("lasts " + Fixed(seconds) + " s and not " + Fixed(span.Least) + " to " +
                     Fixed(span.Most));
  }
  CheckEnds(file, piece, faults);
  CheckRanges(piece, faults);
  const int voices = Voices(piece);
  if (voices > kMostVoices) faults.push_back(std::to_string(voices) + " notes at once");
  return faults;
}

std::vector<std::string> Frictions(const PieceNotes& piece) {
  std::vector<std::string> found;
  const int eighth = piece.TicksPerQuarter / 2;
  for (size_t i = 0; i < piece.Notes.size(); ++i) {
    const FileNote& a = piece.Notes[i];
    if (a.Channel == kDrumChannel) continue;
    for (size_t j = i + 1; j < piece.Notes.size() && piece.Notes[j].Start < a.End; ++j) {
      const FileNote& b = piece.Notes[j];
      const int interval = std::abs(a.Pitch - b.Pitch);
      const int together = std::min(a.End, b.End) - b.Start;
      if (b.Channel == kDrumChannel || (interval != 1 && interval != 13) ||
          together < eighth - 20) {
        continue;
      }
      found.push_back(
          "bar " + std::to_string(b.Start / piece.BarTicks + 1) + " beat " +
          Fixed(b.Start % piece.BarTicks / static_cast<double>(piece.TicksPerQuarter) + 1) + ": " +
          piece.Names[a.Track] + " " + PitchName(a.Pitch) + " against " + piece.Names[b.Track] +
          " " + PitchName(b.Pitch) + " for " +
          Fixed(together / static_cast<double>(piece.TicksPerQuarter)) + " beats");
    }
  }
  return found;
}

std::string Describe(const std::string& name, const PieceNotes& piece) {
  std::string out = name + ": " + Fixed(piece.Seconds(piece.End)) + " s";
  double slow = 1000;
  double fast = 0;
  for (const TempoMark& mark : piece.Tempos) {
    slow = std::min(slow, mark.Tempo);
    fast = std::max(fast, mark.Tempo);
  }
  out += "\n  tempo " + Fixed(piece.Tempos.front().Tempo);
  if (fast - slow > 0.5) out += " (" + Fixed(slow) + " to " + Fixed(fast) + ")";
  out += "\n  key";
  for (const Mark& key : piece.keys) {
    out += " " + key.Text + " (bar " + std::to_string(key.Tick / piece.BarTicks + 1) + ")";
  }
  out += "\n  form";
  for (size_t i = 0; i < piece.sections.size(); ++i) {
    const int end = i + 1 < piece.sections.size() ? piece.sections[i + 1].Tick : piece.End;
    const int start = piece.sections[i].Tick;
    double notes = 0;
    for (const FileNote& note : piece.Notes)
      notes += note.Start >= start && note.Start < end ? 1 : 0;
    out += " " + piece.sections[i].Text + "(" +
           std::to_string((end - start + piece.BarTicks - 1) / piece.BarTicks) + " bars, " +
           Fixed(notes / (piece.Seconds(end) - piece.Seconds(start))) + "/s)";
  }
  out += "\n  instruments";
  for (size_t track = 1; track < piece.Names.size(); ++track) {
    bool drums = false;
    int count = 0;
    for (const FileNote& note : piece.Notes) {
      if (note.Track != track) continue;
      drums = note.Channel == kDrumChannel;
      ++count;
    }
    const Instrument* instrument = FindProgram(piece.Programs[track], drums);
    out += " " + piece.Names[track] + "=" +
           std::string(instrument == nullptr ? "?" : instrument->Name) + "(" +
           std::to_string(count) + ")";
  }
  return out + "\n  at most " + std::to_string(Voices(piece)) + " notes at once\n";
}

}  // namespace orvane::music
