// Standard MIDI files, format 1.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace orvane::music {

// One event at a tick: a channel message (`status` 0x80 to 0xEF with its data bytes), or a meta
// event (`status` 0xFF with its `type` and `text` as the bytes).
struct MidiEvent {
  int Tick = 0;
  uint8_t Status = 0;
  uint8_t Data1 = 0;  // of a meta event: its type
  uint8_t Data2 = 0;
  std::string Text;
};

// A track; the end-of-track event is not among the events but stands at `end`.
struct MidiTrack {
  std::vector<MidiEvent> events;
  int End = 0;
};

struct MidiFile {
  int Format = 1;
  int TicksPerQuarter = 480;
  std::vector<MidiTrack> Tracks;
};

// Types of the meta events that we use.
constexpr uint8_t kMetaText = 0x01;
constexpr uint8_t kMetaName = 0x03;
constexpr uint8_t kMetaMarker = 0x06;
constexpr uint8_t kMetaEnd = 0x2F;
constexpr uint8_t kMetaTempo = 0x51;
constexpr uint8_t kMetaMeter = 0x58;
constexpr uint8_t kMetaKey = 0x59;

// The file's bytes. Events of a track are put in the order of their ticks, and at one tick meta
// events first, then note-offs, controllers and programs, and note-ons.
std::string WriteMidi(const MidiFile& file);

// Reads a file; throws std::runtime_error for anything that is not a whole and well-formed file.
MidiFile ReadMidi(const std::string& bytes);

}  // namespace orvane::music
