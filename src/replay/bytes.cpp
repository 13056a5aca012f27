#include "src/replay/bytes.h"

#include <cstring>

#include "src/base/little_endian.h"

namespace orvane {
namespace {

// BitsOf, which not every compiler has that builds this.
template <class To, class From>
To BitsOf(From value) {
  static_assert(sizeof(To) == sizeof(From));
  To bits{};
  std::memcpy(&bits, &value, sizeof bits);
  return bits;
}

}  // namespace

void ByteWriter::Number(uint64_t value) {
  constexpr uint64_t more = 0x80;
  for (; value >= more; value >>= 7) Byte(static_cast<unsigned>((value & 0x7F) | more));
  Byte(static_cast<unsigned>(value));
}

// The sign goes into the lowest bit, so that small numbers of both signs are short.
void ByteWriter::Signed(int64_t value) {
  const auto bits = static_cast<uint64_t>(value);
  Number(value < 0 ? ~(bits << 1) : bits << 1);
}

void ByteWriter::Fixed32(uint32_t value) {
  AppendLittleEndian(bytes_, value, sizeof value);
}

void ByteWriter::Fixed64(uint64_t value) {
  AppendLittleEndian(bytes_, value, sizeof value);
}

void ByteWriter::Float(float value) {
  Fixed32(BitsOf<uint32_t>(value));
}

void ByteWriter::Double(double value) {
  Fixed64(BitsOf<uint64_t>(value));
}

void ByteWriter::Text(std::string_view text) {
  Number(text.size());
  bytes_ += text;
}

std::string_view ByteReader::Take(uint64_t size) {
  if (size > bytes_.size() - at_) throw BrokenReplay("it ends within an event");
  const std::string_view taken = bytes_.substr(at_, static_cast<size_t>(size));
  at_ += taken.size();
  return taken;
}

unsigned ByteReader::Peek() const {
  if (AtEnd()) throw BrokenReplay("it ends within an event");
  return static_cast<unsigned char>(bytes_[at_]);
}

unsigned ByteReader::Byte() {
  const unsigned byte = Peek();
  ++at_;
  return byte;
}

uint64_t ByteReader::Number() {
  uint64_t value = 0;
  for (unsigned shift = 0; shift < 64; shift += 7) {
    const unsigned byte = Byte();
    value |= static_cast<uint64_t>(byte & 0x7F) << shift;
    if ((byte & 0x80) == 0) return value;
  }
  throw BrokenReplay("a number in it has no end");
}

int64_t ByteReader::Signed() {
  const uint64_t bits = Number();
  return static_cast<int64_t>((bits & 1) != 0 ? ~(bits >> 1) : bits >> 1);
}

uint32_t ByteReader::Fixed32() {
  return static_cast<uint32_t>(FromLittleEndian(Take(sizeof(uint32_t))));
}

uint64_t ByteReader::Fixed64() {
  return FromLittleEndian(Take(sizeof(uint64_t)));
}

float ByteReader::Float() {
  return BitsOf<float>(Fixed32());
}

double ByteReader::Double() {
  return BitsOf<double>(Fixed64());
}

std::string_view ByteReader::Text() {
  return Take(Number());
}

}  // namespace orvane
