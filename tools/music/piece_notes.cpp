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
  if (event.data1 == kMetaName) piece.names[track] = event.text;
  if (event.data1 == kMetaMarker) piece.sections.push_back({event.tick, event.text});
  if (event.data1 == kMetaKey) piece.keys.push_back({event.tick, KeyText(event.text)});
  if (event.data1 == kMetaTempo && event.text.size() == 3) {
    const int micros =
        Unsigned(event.text[0]) << 16 | Unsigned(event.text[1]) << 8 | Unsigned(event.text[2]);
    if (micros > 0) piece.tempos.push_back({event.tick, 60000000.0 / micros});
  }
  if (event.data1 == kMetaMeter && event.text.size() == 4 && event.tick == 0) {
    piece.bar_ticks = piece.ticks_per_quarter * 4 / (1 << event.text[1]) * event.text[0];
  }
}

void ReadTrackNotes(const MidiTrack& track, size_t index, PieceNotes& piece) {
  std::map<std::pair<int, int>, size_t> open;  // channel and pitch to the note
  for (const MidiEvent& event : track.events) {
    if (event.status == 0xFF) {
      ReadMeta(event, piece, index);
      continue;
    }
    const int kind = event.status & 0xF0;
    const int channel = event.status & 0x0F;
    if (kind == 0xC0) piece.programs[index] = event.data1;
    if (kind != 0x90 && kind != 0x80) continue;
    const std::pair<int, int> key(channel, event.data1);
    const auto sounding = open.find(key);
    const std::string place = piece.names[index] + " " + PitchName(event.data1) + " in bar " +
                              std::to_string(event.tick / piece.bar_ticks + 1);
    if (kind == 0x90 && event.data2 > 0) {
      if (sounding != open.end()) piece.faults.push_back("struck while it sounds: " + place);
      open[key] = piece.notes.size();
      piece.notes.push_back({event.tick, -1, event.data1, event.data2, channel, index});
    } else if (sounding == open.end()) {
      piece.faults.push_back("ended but not struck: " + place);
    } else {
      piece.notes[sounding->second].end = event.tick;
      open.erase(sounding);
    }
  }
  for (const auto& [key, note] : open) {
    piece.faults.push_back("never ended: " + piece.names[index] + " " + PitchName(key.second));
  }
}

}  // namespace

double PieceNotes::Seconds(int tick) const {
  double seconds = 0;
  for (size_t i = 0; i < tempos.size() && tempos[i].tick < tick; ++i) {
    const int until = i + 1 < tempos.size() ? std::min(tempos[i + 1].tick, tick) : tick;
    seconds += 60.0 / tempos[i].tempo * (until - tempos[i].tick) / ticks_per_quarter;
  }
  return seconds;
}

PieceNotes CollectNotes(const MidiFile& file) {
  PieceNotes piece;
  piece.ticks_per_quarter = file.ticks_per_quarter;
  piece.names.resize(file.tracks.size());
  piece.programs.resize(file.tracks.size(), -1);
  for (size_t i = 0; i < file.tracks.size(); ++i) {
    ReadTrackNotes(file.tracks[i], i, piece);
    piece.end = std::max(piece.end, file.tracks[i].end);
  }
  std::stable_sort(piece.notes.begin(), piece.notes.end(),
                   [](const FileNote& a, const FileNote& b) { return a.start < b.start; });
  return piece;
}

}  // namespace orvane::music
