// Numbers and texts as bytes of a replay.
#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>

namespace orvane {

// A replay that cannot be read: cut within an event, or no replay at all.
class BrokenReplay : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// Appends to a text. Numbers take seven bits to a byte, the low ones first.
class ByteWriter {
 public:
  explicit ByteWriter(std::string& bytes) : bytes_(bytes) {}

  void Byte(unsigned value) { bytes_ += static_cast<char>(value); }
  void Number(uint64_t value);
  void Signed(int64_t value);
  void Fixed32(uint32_t value);
  void Fixed64(uint64_t value);
  void Float(float value);
  void Double(double value);
  void Text(std::string_view text);

 private:
  std::string& bytes_;
};

// Reads what ByteWriter has written; throws BrokenReplay beyond the end.
class ByteReader {
 public:
  explicit ByteReader(std::string_view bytes) : bytes_(bytes) {}

  bool AtEnd() const { return at_ >= bytes_.size(); }
  size_t At() const { return at_; }
  void GoTo(size_t at) { at_ = at; }
  // The next byte, which stays to be read.
  unsigned Peek() const;

  unsigned Byte();
  uint64_t Number();
  int64_t Signed();
  uint32_t Fixed32();
  uint64_t Fixed64();
  float Float();
  double Double();
  std::string_view Text();

 private:
  std::string_view Take(uint64_t size);

  std::string_view bytes_;
  size_t at_ = 0;
};

}  // namespace orvane
