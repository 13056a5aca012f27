#include "src/sound/song.h"

#include <algorithm>
#include <array>
#include <bitset>

#include "src/sound/midi_bytes.h"
#include "src/sound/tempo_map.h"

namespace orvane {
namespace {

constexpr std::uint32_t kHeader = 0x4d546864;  // "MThd"
constexpr std::uint32_t kTrack = 0x4d54726b;   // "MTrk"
constexpr std::uint8_t kMeta = 0xff;
constexpr std::uint8_t kMetaEnd = 0x2f;
constexpr std::uint8_t kMetaTempo = 0x51;
// Beyond it times would leave what the tempo map can count; no piece comes near.
constexpr std::int64_t kMostTicks = std::int64_t{1} << 32;
// Nobody can hear more, and to read it must not take longer than a player waits.
constexpr size_t kMostEvents = size_t{1} << 19;

struct TimedEvent {
  std::int64_t Tick = 0;
  SongEvent Event;
};

struct Tempo {
  std::int64_t Tick = 0;
  std::int64_t MicrosecondsPerBeat = 0;
};

struct Tracks {
  std::vector<TimedEvent> Events;
  std::vector<Tempo> Tempos;
  std::int64_t End = 0;
};

// Whether a message of that kind carries two values.
bool HasTwoValues(int status) {
  const int kind = status >> 4;
  return kind != kProgram && kind != 13;
}

// Reads a track to its end mark or its last byte. False if it is malformed.
bool ReadTrack(MidiBytes bytes, Tracks& tracks) {
  std::int64_t tick = 0;
  std::uint8_t running = 0;
  while (!bytes.AtEnd()) {
    tick += bytes.Variable();
    if (tick > kMostTicks) return false;
    tracks.End = std::max(tracks.End, tick);
    if (bytes.Peek() >= 0x80) running = bytes.Next();
    if (running < 0x80) return false;
    if (running < 0xf0) {
      SongEvent event;
      event.Status = running;
      event.First = bytes.Next();
      if (HasTwoValues(running)) event.Second = bytes.Next();
      if (event.First > 0x7f || event.Second > 0x7f) return false;
      tracks.Events.push_back({tick, event});
    } else if (running == 0xf0 || running == 0xf7) {
      bytes.Part(bytes.Variable());  // a system message: nothing that a piece needs here
    } else if (running == kMeta) {
      const std::uint8_t type = bytes.Next();
      MidiBytes text = bytes.Part(bytes.Variable());
      if (type == kMetaEnd) return !bytes.Broken();
      if (type == kMetaTempo) tracks.Tempos.push_back({tick, text.Number(3)});
    } else {
      return false;
    }
    if (running >= 0xf0) running = 0;
    if (bytes.Broken() || tracks.Events.size() + tracks.Tempos.size() > kMostEvents) return false;
  }
  return !bytes.Broken();
}

// The way of counting that a header's last number tells: ticks to a beat, or, with its top bit
// set, frames to a second and ticks to a frame, which no tempo changes.
std::optional<TempoMap> ReadDivision(std::uint32_t division, bool& by_tempo) {
  by_tempo = (division & 0x8000U) == 0;
  if (by_tempo) return division == 0 ? std::nullopt : std::optional<TempoMap>(TempoMap(division));
  const std::int64_t frames = 256 - (division >> 8);
  const std::int64_t ticks = division & 0xffU;
  if (frames < 24 || frames > 30 || ticks == 0) return std::nullopt;
  // Twenty-nine stands for the television's thirty thousand frames in 1001 seconds.
  if (frames == 29) return TempoMap(30 * ticks, 1001000);
  return TempoMap(frames * ticks, 1000000);
}

// Gives the first instrument to channels that sound before they have chosen one, so that a piece
// sounds the same each time it starts over.
void NameInstruments(std::vector<SongEvent>& events) {
  std::array<bool, 16> named{};
  std::vector<SongEvent> first;
  for (const SongEvent& event : events) {
    bool& channel = named.at(static_cast<size_t>(event.Channel()));
    if (event.Kind() == kNoteOn && !channel) {
      first.push_back({0, static_cast<std::uint8_t>((kProgram << 4) | event.Channel()), 0, 0});
    }
    if (event.Kind() == kNoteOn || event.Kind() == kProgram) channel = true;
  }
  events.insert(events.begin(), first.begin(), first.end());
}

}  // namespace

std::optional<Song> ReadSong(std::span<const std::uint8_t> file) {
  MidiBytes bytes(file);
  if (bytes.Number(4) != kHeader) return std::nullopt;
  MidiBytes header = bytes.Part(bytes.Number(4));
  const std::uint32_t format = header.Number(2);
  const std::uint32_t count = header.Number(2);
  bool by_tempo = false;
  std::optional<TempoMap> tempos = ReadDivision(header.Number(2), by_tempo);
  if (header.Broken() || format > 1 || count == 0 || !tempos) return std::nullopt;

  Tracks tracks;
  for (std::uint32_t found = 0; found < count;) {
    const std::uint32_t name = bytes.Number(4);
    const MidiBytes part = bytes.Part(bytes.Number(4));
    if (bytes.Broken()) return std::nullopt;
    if (name != kTrack) continue;
    if (!ReadTrack(part, tracks)) return std::nullopt;
    ++found;
  }
  if (by_tempo) {
    std::stable_sort(tracks.Tempos.begin(), tracks.Tempos.end(),
                     [](const Tempo& a, const Tempo& b) { return a.Tick < b.Tick; });
    for (const Tempo& tempo : tracks.Tempos) tempos->Add(tempo.Tick, tempo.MicrosecondsPerBeat);
  }
  std::stable_sort(tracks.Events.begin(), tracks.Events.end(),
                   [](const TimedEvent& a, const TimedEvent& b) { return a.Tick < b.Tick; });
  Song song;
  song.Ticks = tracks.End;
  song.Seconds = tempos->Seconds(tracks.End);
  for (TimedEvent& timed : tracks.Events) {
    timed.Event.Seconds = tempos->Seconds(timed.Tick);
    song.Events.push_back(timed.Event);
  }
  NameInstruments(song.Events);
  return song;
}

std::optional<Patch> PatchReader::Read(const SongEvent& event) {
  int& bank = banks_.at(static_cast<size_t>(event.Channel()));
  if (event.Kind() == kControl && event.First == 0) bank = event.Second;
  if (event.Kind() != kProgram) return std::nullopt;
  return Patch{event.Channel() == kDrumChannel ? kDrumBank : bank, event.First};
}

std::vector<Patch> PatchesOf(const Song& song) {
  std::vector<Patch> patches;
  std::bitset<kPrograms*(kDrumBank + 1)> named;
  PatchReader reader;
  for (const SongEvent& event : song.Events) {
    const std::optional<Patch> patch = reader.Read(event);
    if (!patch) continue;
    const auto place = static_cast<size_t>(patch->Bank * kPrograms + patch->Program);
    if (named.test(place)) continue;
    named.set(place);
    patches.push_back(*patch);
  }
  return patches;
}

}  // namespace orvane
