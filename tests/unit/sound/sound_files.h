// Sound files made by hand, byte by byte, for the tests of the sound engine.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include "src/platform/path_text.h"

namespace orvane::test {

using Bytes = std::vector<std::uint8_t>;

// Numbers with the most or the least significant byte first.
void PutBig(Bytes& bytes, std::uint32_t value, int count);
void PutLittle(Bytes& bytes, std::uint32_t value, int count);

// The parts of a MIDI file.
Bytes MidiHeader(int format, int tracks, int division);
// A track around its events; the end mark comes `rest` ticks (below 128) after the last of them.
Bytes MidiTrack(const Bytes& events, int rest = 0);
Bytes Join(const std::vector<Bytes>& parts);

// One channel, 120 beats a minute, 96 ticks a beat: a bar of four notes of a beat each, two seconds
// long, `bars` times over.
Bytes SimpleSong(int bars);
// One track that asks for instrument after instrument, all 16,384 of them in turn, `choices` in
// all, within a beat, and for each a note.
Bytes RestlessSong(int choices);
// A WAV file of 16 bits.
Bytes Wave(int rate, int channels, const std::vector<std::int16_t>& samples);
// Frames of full scale that swing at that many Hz.
std::vector<std::int16_t> Tone(double hertz, int rate, double seconds, double level);

// A folder for a test's files, removed with it.
class Folder {
 public:
  Folder();
  ~Folder();
  Folder(const Folder&) = delete;
  Folder& operator=(const Folder&) = delete;

  // Writes a file of the folder "Sound".
  void Write(const std::string& name, const Bytes& bytes) const;
  std::string Path() const { return TextOf(path_); }

 private:
  std::filesystem::path path_;
};

}  // namespace orvane::test
