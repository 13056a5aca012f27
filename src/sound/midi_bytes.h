// Reads the numbers of a MIDI file.
#pragma once

#include <cstdint>
#include <span>

namespace orvane {

// A walk over bytes. Reading past the end gives zeros and makes the walk broken for good.
class MidiBytes {
 public:
  explicit MidiBytes(std::span<const std::uint8_t> bytes) : rest_(bytes) {}

  bool AtEnd() const { return rest_.empty(); }
  bool Broken() const { return broken_; }
  void Break() { broken_ = true; }

  std::uint8_t Next();
  // The next byte without taking it; 0 at the end.
  std::uint8_t Peek() const { return rest_.empty() ? std::uint8_t{0} : rest_.front(); }
  // A number of some bytes, most significant first.
  std::uint32_t Number(int bytes);
  // A number of up to four bytes of seven bits.
  std::uint32_t Variable();
  // Takes that many bytes as a walk of their own.
  MidiBytes Part(std::uint32_t length);

 private:
  std::span<const std::uint8_t> rest_;
  bool broken_ = false;
};

}  // namespace orvane
