#include "tools/music/piece_notes.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <map>
#include <utility>

#include "tools/music/pitch.h"

namespace orvane::music {
namespace {

int Unsigned(char c) {
  return static_cast<unsigned char>(c);
}

std::string KeyText(const std::string& bytes) {
  static constexpr std::array<const char*, 15> majors = {
      "Cb", "Gb", "Db", "Ab", "Eb", "Bb", "F", "C", "G", "D", "A", "E", "B", "F#", "C#"};
  static constexpr std::array<const char*, 15> minors = {
      "Ab", "Eb", "Bb", "F", "C", "G", "D", "A", "E", "B", "F#", "C#", "G#", "D#", "A#"};
  if (bytes.size() != 2) return "?";
  const int byte = Unsigned(bytes[0]);
  const int sharps = byte < 128 ? byte : byte - 256;
  if (sharps < -7 || sharps > 7) return "?";
  const size_t index = static_cast<size_t>(sharps) + 7;
  return bytes[1] == 0 ? std::string(majors[index]) + " major"
                       : std::string(minors[index]) + " minor";
}

void ReadMeta(const MidiEvent& event, PieceNotes& piece, size_t track) {
  if (event.Data1 == kMetaName) piece.Names[track] = event.Text;
  if (event.Data1 == kMetaMarker) piece.sections.push_back({event.Tick, event.Text});
  if (event.Data1 == kMetaKey) piece.keys.push_back({event.Tick, KeyText(event.Text)});
  if (event.Data1 == kMetaTempo && event.Text.size() == 3) {
    const int micros =
        Unsigned(event.Text[0]) << 16 | Unsigned(event.Text[1]) << 8 | Unsigned(event.Text[2]);
    if (micros > 0) piece.Tempos.push_back({event.Tick, 60000000.0 / micros});
  }
  if (event.Data1 == kMetaMeter && event.Text.size() == 4 && event.Tick == 0) {
    piece.BarTicks = piece.TicksPerQuarter * 4 / (1 << event.Text[1]) * event.Text[0];
  }
}

void ReadTrackNotes(const MidiTrack& track, size_t index, PieceNotes& piece) {
  std::map<std::pair<int, int>, size_t> open;  // channel and pitch to the note
  for (const MidiEvent& event : track.events) {
    if (event.Status == 0xFF) {
      ReadMeta(event, piece, index);
      continue;
    }
    const int kind = event.Status & 0xF0;
    const int channel = event.Status & 0x0F;
    if (kind == 0xC0) piece.Programs[index] = event.Data1;
    if (kind != 0x90 && kind != 0x80) continue;
    const std::pair<int, int> key(channel, event.Data1);
    const auto sounding = open.find(key);
    const std::string place = piece.Names[index] + " " + PitchName(event.Data1) + " in bar " +
                              std::to_string(event.Tick / piece.BarTicks + 1);
    if (kind == 0x90 && event.Data2 > 0) {
      if (sounding != open.end()) piece.Faults.push_back("struck while it sounds: " + place);
      open[key] = piece.Notes.size();
      piece.Notes.push_back({event.Tick, -1, event.Data1, event.Data2, channel, index});
    } else if (sounding == open.end()) {
      piece.Faults.push_back("ended but not struck: " + place);
    } else {
      piece.Notes[sounding->second].End = event.Tick;
      open.erase(sounding);
    }
  }
  for (const auto& [key, note] : open) {
    piece.Faults.push_back("never ended: " + piece.Names[index] + " " + PitchName(key.second));
  }
}

}  // namespace

double PieceNotes::Seconds(int tick) const {
  double seconds = 0;
  for (size_t i = 0; i < Tempos.size() && Tempos[i].Tick < tick; ++i) {
    const int until = i + 1 < Tempos.size() ? std::min(Tempos[i + 1].Tick, tick) : tick;
    seconds += 60.0 / Tempos[i].Tempo * (until - Tempos[i].Tick) / TicksPerQuarter;
  }
  return seconds;
}

PieceNotes CollectNotes(const MidiFile& file) {
  PieceNotes piece;
  piece.TicksPerQuarter = file.TicksPerQuarter;
  piece.Names.resize(file.Tracks.size());
  piece.Programs.resize(file.Tracks.size(), -1);
  for (size_t i = 0; i < file.Tracks.size(); ++i) {
    ReadTrackNotes(file.Tracks[i], i, piece);
    piece.End = std::max(piece.End, file.Tracks[i].End);
  }
  std::stable_sort(piece.Notes.begin(), piece.Notes.end(),
                   [](const FileNote& a, const FileNote& b) { return a.Start < b.Start; });
  return piece;
}

}  // namespace orvane::music
