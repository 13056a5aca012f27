// A piece of music as a standard MIDI file tells it.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace orvane {

// A message to one of the sixteen MIDI channels, at its time in the piece.
struct SongEvent {
  double Seconds = 0;       // from the start of the piece
  std::uint8_t Status = 0;  // the kind in the upper half (8 to 14), the channel in the lower
  std::uint8_t First = 0;   // 0 to 127
  std::uint8_t Second = 0;  // 0 to 127; 0 where the kind has one value only

  int Kind() const { return Status >> 4; }
  int Channel() const { return Status & 0x0f; }
};

struct Song {
  std::vector<SongEvent> Events;  // in order of time; a channel's notes follow its instrument
  std::int64_t Ticks = 0;         // to the end of the longest track
  double Seconds = 0;             // the same by the tempo map
};

// The kinds of event that the sound engine looks at itself.
constexpr int kNoteOn = 9;
constexpr int kControl = 11;
constexpr int kProgram = 12;
// Instruments of a bank.
constexpr int kPrograms = 128;
// The channel of the drums, and the bank that a sound font keeps them in.
constexpr int kDrumChannel = 9;
constexpr int kDrumBank = 128;

// An instrument by its numbers.
struct Patch {
  int Bank = 0;     // 0 to 128
  int Program = 0;  // 0 to 127
  bool operator==(const Patch&) const = default;
};

// Follows the events of a song to know which instrument a channel asks for.
class PatchReader {
 public:
  // Takes an event in; gives the instrument if the event chooses one.
  std::optional<Patch> Read(const SongEvent& event);

 private:
  std::array<int, 16> banks_{};
};

// Reads a standard MIDI file of format 0 or 1. Anything that is cut off or malformed gives nothing,
// and so does a file of more than half a million events.
std::optional<Song> ReadSong(std::span<const std::uint8_t> file);

// The instruments that a song asks for, each once.
std::vector<Patch> PatchesOf(const Song& song);

}  // namespace orvane
