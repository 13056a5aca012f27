#include "src/sound/midi_bytes.h"

namespace orvane {

std::uint8_t MidiBytes::Next() {
  if (rest_.empty()) {
    broken_ = true;
    return 0;
  }
  const std::uint8_t byte = rest_.front();
  rest_ = rest_.subspan(1);
  return byte;
}

std::uint32_t MidiBytes::Number(int bytes) {
  std::uint32_t number = 0;
  for (int i = 0; i < bytes; ++i) number = (number << 8) | Next();
  return number;
}

std::uint32_t MidiBytes::Variable() {
  std::uint32_t number = 0;
  for (int i = 0; i < 4; ++i) {
    const std::uint8_t byte = Next();
    number = (number << 7) | (byte & 0x7fU);
    if (byte < 0x80) return number;
  }
  broken_ = true;
  return 0;
}

MidiBytes MidiBytes::Part(std::uint32_t length) {
  if (length > rest_.size()) {
    broken_ = true;
    return MidiBytes({});
  }
  const MidiBytes part(rest_.first(length));
  rest_ = rest_.subspan(length);
  return part;
}

}  // namespace orvane
