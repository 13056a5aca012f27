#include "tools/music/midi_file.h"

#include <algorithm>
#include <stdexcept>

namespace orvane::music {
namespace {

void PutNumber(std::string& out, uint32_t value, int bytes) {
  for (int i = bytes - 1; i >= 0; --i) out += static_cast<char>((value >> (8 * i)) & 0xFF);
}

// Seven bits a byte, the high bit set on all but the last.
void PutVariable(std::string& out, uint32_t value) {
  std::string bytes(1, static_cast<char>(value & 0x7F));
  while ((value >>= 7) != 0) bytes.insert(bytes.begin(), static_cast<char>((value & 0x7F) | 0x80));
  out += bytes;
}

int Rank(const MidiEvent& event) {
  if (event.Status == 0xFF) return 0;
  const int kind = event.Status & 0xF0;
  if (kind == 0x80) return 1;
  return kind == 0x90 ? 3 : 2;
}

int DataBytes(int status) {
  const int kind = status & 0xF0;
  return kind == 0xC0 || kind == 0xD0 ? 1 : 2;
}

std::string WriteTrack(const MidiTrack& track) {
  std::vector<MidiEvent> events = track.events;
  std::stable_sort(events.begin(), events.end(), [](const MidiEvent& a, const MidiEvent& b) {
    return a.Tick != b.Tick ? a.Tick < b.Tick : Rank(a) < Rank(b);
  });
  std::string out;
  int now = 0;
  for (const MidiEvent& event : events) {
    PutVariable(out, static_cast<uint32_t>(event.Tick - now));
    now = event.Tick;
    out += static_cast<char>(event.Status);
    out += static_cast<char>(event.Data1);
    if (event.Status == 0xFF) {
      PutVariable(out, static_cast<uint32_t>(event.Text.size()));
      out += event.Text;
    } else if (DataBytes(event.Status) == 2) {
      out += static_cast<char>(event.Data2);
    }
  }
  PutVariable(out, static_cast<uint32_t>(std::max(track.End - now, 0)));
  out += std::string("\xFF\x2F\x00", 3);
  return out;
}

class Bytes {
 public:
  Bytes(const std::string& bytes, size_t at, size_t end) : bytes_(bytes), at_(at), end_(end) {
    if (end > bytes.size()) throw std::runtime_error("the file is cut off");
  }

  bool Done() const { return at_ >= end_; }
  size_t At() const { return at_; }

  uint8_t Byte() {
    if (Done()) throw std::runtime_error("a chunk is cut off");
    return static_cast<uint8_t>(bytes_[at_++]);
  }

  uint32_t Number(int count) {
    uint32_t value = 0;
    for (int i = 0; i < count; ++i) value = (value << 8) | Byte();
    return value;
  }

  uint32_t Variable() {
    uint32_t value = 0;
    for (int i = 0; i < 4; ++i) {
      const uint8_t byte = Byte();
      value = (value << 7) | (byte & 0x7FU);
      if ((byte & 0x80) == 0) return value;
    }
    throw std::runtime_error("a number of more than four bytes");
  }

  std::string Text(size_t size) {
    if (size > end_ - at_) throw std::runtime_error("a text is cut off");
    at_ += size;
    return bytes_.substr(at_ - size, size);
  }

 private:
  const std::string& bytes_;
  size_t at_;
  size_t end_;
};

MidiTrack ReadTrack(Bytes in) {
  MidiTrack track;
  int now = 0;
  uint8_t running = 0;
  while (!in.Done()) {
    now += static_cast<int>(in.Variable());
    MidiEvent event;
    event.Tick = now;
    uint8_t first = in.Byte();
    if (first == 0xFF) {
      event.Status = first;
      event.Data1 = in.Byte();
      event.Text = in.Text(in.Variable());
      if (event.Data1 == kMetaEnd) {
        if (!in.Done()) throw std::runtime_error("events behind the end of a track");
        track.End = now;
        return track;
      }
    } else if (first >= 0xF0) {
      throw std::runtime_error("a system message");
    } else {
      if (first >= 0x80) {
        running = first;
        first = in.Byte();
      }
      if (running == 0 || first >= 0x80) throw std::runtime_error("a data byte out of place");
      event.Status = running;
      event.Data1 = first;
      if (DataBytes(running) == 2) event.Data2 = in.Byte();
    }
    track.events.push_back(event);
  }
  throw std::runtime_error("a track without its end");
}

}  // namespace

std::string WriteMidi(const MidiFile& file) {
  std::string out = "MThd";
  PutNumber(out, 6, 4);
  PutNumber(out, static_cast<uint32_t>(file.Format), 2);
  PutNumber(out, static_cast<uint32_t>(file.Tracks.size()), 2);
  PutNumber(out, static_cast<uint32_t>(file.TicksPerQuarter), 2);
  for (const MidiTrack& track : file.Tracks) {
    const std::string body = WriteTrack(track);
    out += "MTrk";
    PutNumber(out, static_cast<uint32_t>(body.size()), 4);
    out += body;
  }
  return out;
}

MidiFile ReadMidi(const std::string& bytes) {
  Bytes in(bytes, 0, bytes.size());
  if (in.Text(4) != "MThd" || in.Number(4) != 6) throw std::runtime_error("no MIDI header");
  MidiFile file;
  file.Format = static_cast<int>(in.Number(2));
  const uint32_t tracks = in.Number(2);
  file.TicksPerQuarter = static_cast<int>(in.Number(2));
  for (uint32_t i = 0; i < tracks; ++i) {
    if (in.Text(4) != "MTrk") throw std::runtime_error("no track where one must be");
    const size_t size = in.Number(4);
    file.Tracks.push_back(ReadTrack(Bytes(bytes, in.At(), in.At() + size)));
    in.Text(size);
  }
  if (!in.Done()) throw std::runtime_error("bytes behind the last track");
  return file;
}

}  // namespace orvane::music
