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
  const int sixteenth = piece.ticks_per_quarter / 4;
  int last = 0;
  for (const FileNote& note : piece.notes) last = std::max(last, note.end);
  if (piece.notes.front().start > sixteenth) faults.emplace_back("silence at the start");
  if (piece.end - last > sixteenth) faults.emplace_back("silence at the end");
  if (last > piece.end) faults.emplace_back("a note beyond the end");
  for (const MidiTrack& track : file.tracks) {
    if (track.end != piece.end) faults.emplace_back("tracks of different lengths");
  }
  if (piece.keys.empty() || piece.keys.front().text != piece.keys.back().text) {
    faults.emplace_back("the key at the end is not that of the start");
  }
  const double ratio = piece.tempos.back().tempo / piece.tempos.front().tempo;
  if (ratio < 0.6 || ratio > 1.4) faults.emplace_back("the tempo at the end does not lead back");
}

void CheckRanges(const PieceNotes& piece, std::vector<std::string>& faults) {
  for (size_t track = 1; track < piece.names.size(); ++track) {
    int low = 128;
    int high = -1;
    bool drums = false;
    for (const FileNote& note : piece.notes) {
      if (note.track != track) continue;
      low = std::min(low, note.pitch);
      high = std::max(high, note.pitch);
      drums = note.channel == kDrumChannel;
    }
    if (high < 0) {
      faults.push_back(piece.names[track] + " plays nothing");
      continue;
    }
    const Instrument* instrument = FindProgram(piece.programs[track], drums);
    if (instrument == nullptr) {
      faults.push_back(piece.names[track] + ": unknown instrument");
    } else if (low < instrument->low || high > instrument->high) {
      faults.push_back(piece.names[track] + ": " + PitchName(low) + " to " + PitchName(high) +
                       " leaves the range of " + std::string(instrument->name));
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
    const char* name = nullptr;
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
    if (name == row.name) return row.span;
  }
  return {0, 3600};
}

int Voices(const PieceNotes& piece) {
  std::map<int, int> changes;
  for (const FileNote& note : piece.notes) {
    ++changes[note.start];
    --changes[note.end];
  }
  int now = 0;
  int most = 0;
  for (const auto& [tick, change] : changes) most = std::max(most, now += change);
  return most;
}

std::vector<std::string> CheckPiece(const std::string& name, const MidiFile& file) {
  const PieceNotes piece = CollectNotes(file);
  std::vector<std::string> faults = piece.faults;
  if (file.format != 1) faults.emplace_back("not of format 1");
  if (piece.notes.empty() || piece.tempos.empty()) {
    faults.emplace_back("no notes or no tempo");
    return faults;
  }
  if (piece.tempos.front().tick != 0) faults.emplace_back("no tempo at the start");
  const double seconds = piece.Seconds(piece.end);
  const Span span = SpanOf(name);
  if (seconds < span.least || seconds > span.most) {
    faults.push_back("lasts " + Fixed(seconds) + " s and not " + Fixed(span.least) + " to " +
                     Fixed(span.most));
  }
  CheckEnds(file, piece, faults);
  CheckRanges(piece, faults);
  const int voices = Voices(piece);
  if (voices > kMostVoices) faults.push_back(std::to_string(voices) + " notes at once");
  return faults;
}

std::vector<std::string> Frictions(const PieceNotes& piece) {
  std::vector<std::string> found;
  const int eighth = piece.ticks_per_quarter / 2;
  for (size_t i = 0; i < piece.notes.size(); ++i) {
    const FileNote& a = piece.notes[i];
    if (a.channel == kDrumChannel) continue;
    for (size_t j = i + 1; j < piece.notes.size() && piece.notes[j].start < a.end; ++j) {
      const FileNote& b = piece.notes[j];
      const int interval = std::abs(a.pitch - b.pitch);
      const int together = std::min(a.end, b.end) - b.start;
      if (b.channel == kDrumChannel || (interval != 1 && interval != 13) ||
          together < eighth - 20) {
        continue;
      }
      found.push_back(
          "bar " + std::to_string(b.start / piece.bar_ticks + 1) + " beat " +
          Fixed(b.start % piece.bar_ticks / static_cast<double>(piece.ticks_per_quarter) + 1) +
          ": " + piece.names[a.track] + " " + PitchName(a.pitch) + " against " +
          piece.names[b.track] + " " + PitchName(b.pitch) + " for " +
          Fixed(together / static_cast<double>(piece.ticks_per_quarter)) + " beats");
    }
  }
  return found;
}

std::string Describe(const std::string& name, const PieceNotes& piece) {
  std::string out = name + ": " + Fixed(piece.Seconds(piece.end)) + " s";
  double slow = 1000;
  double fast = 0;
  for (const TempoMark& mark : piece.tempos) {
    slow = std::min(slow, mark.tempo);
    fast = std::max(fast, mark.tempo);
  }
  out += "\n  tempo " + Fixed(piece.tempos.front().tempo);
  if (fast - slow > 0.5) out += " (" + Fixed(slow) + " to " + Fixed(fast) + ")";
  out += "\n  key";
  for (const Mark& key : piece.keys) {
    out += " " + key.text + " (bar " + std::to_string(key.tick / piece.bar_ticks + 1) + ")";
  }
  out += "\n  form";
  for (size_t i = 0; i < piece.sections.size(); ++i) {
    const int end = i + 1 < piece.sections.size() ? piece.sections[i + 1].tick : piece.end;
    const int start = piece.sections[i].tick;
    double notes = 0;
    for (const FileNote& note : piece.notes)
      notes += note.start >= start && note.start < end ? 1 : 0;
    out += " " + piece.sections[i].text + "(" +
           std::to_string((end - start + piece.bar_ticks - 1) / piece.bar_ticks) + " bars, " +
           Fixed(notes / (piece.Seconds(end) - piece.Seconds(start))) + "/s)";
  }
  out += "\n  instruments";
  for (size_t track = 1; track < piece.names.size(); ++track) {
    bool drums = false;
    int count = 0;
    for (const FileNote& note : piece.notes) {
      if (note.track != track) continue;
      drums = note.channel == kDrumChannel;
      ++count;
    }
    const Instrument* instrument = FindProgram(piece.programs[track], drums);
    out += " " + piece.names[track] + "=" +
           std::string(instrument == nullptr ? "?" : instrument->name) + "(" +
           std::to_string(count) + ")";
  }
  return out + "\n  at most " + std::to_string(Voices(piece)) + " notes at once\n";
}

}  // namespace orvane::music
