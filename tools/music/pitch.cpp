#include "tools/music/pitch.h"

#include <array>
#include <cctype>

namespace orvane::music {
namespace {

// Semitones above c of the letters a to g.
constexpr std::array<int, 7> kLetterSemitones = {9, 11, 0, 2, 4, 5, 7};

}  // namespace

int ReadSemitone(std::string_view text, size_t& at) {
  if (at >= text.size()) throw std::invalid_argument("a pitch is missing");
  const int letter = std::tolower(static_cast<unsigned char>(text[at]));
  if (letter < 'a' || letter > 'g') {
    throw std::invalid_argument("no pitch: " + std::string(text.substr(at)));
  }
  int semitone = kLetterSemitones[static_cast<size_t>(letter - 'a')];
  ++at;
  if (at < text.size() && text[at] == '#') {
    ++semitone;
    ++at;
  } else if (at < text.size() && text[at] == 'b') {
    --semitone;
    ++at;
  }
  return semitone;
}

int ReadPitchClass(std::string_view text, size_t& at) {
  const size_t start = at;
  try {
    return (ReadSemitone(text, at) + 12) % 12;
  } catch (const std::invalid_argument&) {
    at = start;
    return -1;
  }
}

int ReadPitch(std::string_view text) {
  size_t at = 0;
  const int semitone = ReadSemitone(text, at);
  if (at + 1 != text.size() || std::isdigit(static_cast<unsigned char>(text[at])) == 0) {
    throw std::invalid_argument("no pitch with an octave: " + std::string(text));
  }
  const int pitch = semitone + 12 * (text[at] - '0' + 1);
  if (pitch < 0 || pitch > 127) throw std::invalid_argument("out of MIDI: " + std::string(text));
  return pitch;
}

std::string PitchName(int pitch) {
  static constexpr std::array<const char*, 12> names = {"C",  "C#", "D",  "D#", "E",  "F",
                                                        "F#", "G",  "G#", "A",  "A#", "B"};
  return names[static_cast<size_t>(((pitch % 12) + 12) % 12)] + std::to_string(pitch / 12 - 1);
}

Key ReadKey(std::string_view tonic, std::string_view mode) {
  // Sharps of the major key on each pitch class; the flat side where both are usual.
  static constexpr std::array<int, 12> major_sharps = {0, -5, 2, -3, 4, -1, 6, 1, -4, 3, -2, 5};
  size_t at = 0;
  const int pitch_class = ReadPitchClass(tonic, at);
  if (pitch_class < 0 || at != tonic.size() || (mode != "major" && mode != "minor")) {
    throw std::invalid_argument("no key: " + std::string(tonic) + " " + std::string(mode));
  }
  Key key;
  key.Name = std::string(tonic) + " " + std::string(mode);
  key.Minor = mode == "minor";
  key.Tonic = pitch_class;
  key.Sharps = major_sharps[static_cast<size_t>(key.Minor ? (pitch_class + 3) % 12 : pitch_class)];
  const bool sharp_name = tonic.size() > 1 && tonic[1] == '#';
  if (sharp_name && key.Sharps < -4) key.Sharps += 12;
  const bool flat_name = tonic.size() > 1 && tonic[1] == 'b';
  if (flat_name && key.Sharps > 5) key.Sharps -= 12;
  return key;
}

}  // namespace orvane::music
