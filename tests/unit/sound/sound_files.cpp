#include "tests/unit/sound/sound_files.h"

#include <cmath>
#include <fstream>
#include <numbers>

#include "src/platform/temporary_folder.h"

namespace orvane::test {

void PutBig(Bytes& bytes, std::uint32_t value, int count) {
  for (int i = count - 1; i >= 0; --i) {
    bytes.push_back(static_cast<std::uint8_t>((value >> (8 * i)) & 0xffU));
  }
}

void PutLittle(Bytes& bytes, std::uint32_t value, int count) {
  for (int i = 0; i < count; ++i) {
    bytes.push_back(static_cast<std::uint8_t>((value >> (8 * i)) & 0xffU));
  }
}

Bytes MidiHeader(int format, int tracks, int division) {
  Bytes bytes{'M', 'T', 'h', 'd'};
  PutBig(bytes, 6, 4);
  PutBig(bytes, static_cast<std::uint32_t>(format), 2);
  PutBig(bytes, static_cast<std::uint32_t>(tracks), 2);
  PutBig(bytes, static_cast<std::uint32_t>(division), 2);
  return bytes;
}

Bytes MidiTrack(const Bytes& events, int rest) {
  Bytes bytes{'M', 'T', 'r', 'k'};
  PutBig(bytes, static_cast<std::uint32_t>(events.size() + 4), 4);
  bytes.insert(bytes.end(), events.begin(), events.end());
  for (const int byte : {rest, 0xff, 0x2f, 0}) bytes.push_back(static_cast<std::uint8_t>(byte));
  return bytes;
}

Bytes Join(const std::vector<Bytes>& parts) {
  Bytes all;
  for (const Bytes& part : parts) all.insert(all.end(), part.begin(), part.end());
  return all;
}

Bytes SimpleSong(int bars) {
  Bytes events{0, 0xc0, 48, 0, 0xb0, 7, 110};
  for (int bar = 0; bar < bars; ++bar) {
    for (const int key : {60, 64, 67, 72}) {
      const auto note = static_cast<std::uint8_t>(key);
      const Bytes beat{0, 0x90, note, 100, 96, 0x80, note, 0};
      events.insert(events.end(), beat.begin(), beat.end());
    }
  }
  return Join({MidiHeader(1, 1, 96), MidiTrack(events)});
}

Bytes RestlessSong(int choices) {
  Bytes events;
  for (int i = 0; i < choices; ++i) {
    const auto bank = static_cast<std::uint8_t>(i / 128 % 128);
    const auto program = static_cast<std::uint8_t>(i % 128);
    const Bytes choice{0, 0xb0, 0, bank, 0, 0xc0, program, 0, 0x90, 60, 100};
    events.insert(events.end(), choice.begin(), choice.end());
  }
  return Join({MidiHeader(0, 1, 96), MidiTrack(events, 96)});
}

Bytes Wave(int rate, int channels, const std::vector<std::int16_t>& samples) {
  const auto size = static_cast<std::uint32_t>(2 * samples.size());
  const auto frame = static_cast<std::uint32_t>(2 * channels);
  Bytes bytes{'R', 'I', 'F', 'F'};
  PutLittle(bytes, 36 + size, 4);
  for (const char letter : {'W', 'A', 'V', 'E', 'f', 'm', 't', ' '}) {
    bytes.push_back(static_cast<std::uint8_t>(letter));
  }
  PutLittle(bytes, 16, 4);
  PutLittle(bytes, 1, 2);
  PutLittle(bytes, static_cast<std::uint32_t>(channels), 2);
  PutLittle(bytes, static_cast<std::uint32_t>(rate), 4);
  PutLittle(bytes, static_cast<std::uint32_t>(rate) * frame, 4);
  PutLittle(bytes, frame, 2);
  PutLittle(bytes, 16, 2);
  for (const char letter : {'d', 'a', 't', 'a'}) bytes.push_back(static_cast<std::uint8_t>(letter));
  PutLittle(bytes, size, 4);
  for (const std::int16_t sample : samples) PutLittle(bytes, static_cast<std::uint16_t>(sample), 2);
  return bytes;
}

std::vector<std::int16_t> Tone(double hertz, int rate, double seconds, double level) {
  std::vector<std::int16_t> samples(static_cast<size_t>(seconds * rate));
  for (size_t i = 0; i < samples.size(); ++i) {
    const double turn = 2 * std::numbers::pi * hertz * static_cast<double>(i) / rate;
    samples[i] = static_cast<std::int16_t>(std::lround(std::sin(turn) * level * 32767));
  }
  return samples;
}

Folder::Folder() : path_(MakeTemporaryFolder("orvane-sound-")) {
  std::filesystem::create_directories(path_ / "Sound");
}

Folder::~Folder() {
  RemoveFolder(path_);
}

void Folder::Write(const std::string& name, const Bytes& bytes) const {
  std::ofstream file(path_ / "Sound" / name, std::ios::binary);
  const std::vector<char> chars(bytes.begin(), bytes.end());
  file.write(chars.data(), static_cast<std::streamsize>(chars.size()));
}

}  // namespace orvane::test
