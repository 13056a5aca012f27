// Numbers as files have them: the lowest byte first, whatever the machine's own order is.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace orvane {

// The number that these bytes are, of which there are 8 at most; none are 0.
template <class Bytes>
constexpr uint64_t FromLittleEndian(const Bytes& bytes) {
  uint64_t value = 0;
  unsigned shift = 0;
  for (const auto byte : bytes) {
    value |= uint64_t{static_cast<unsigned char>(byte)} << shift;
    shift += 8;
  }
  return value;
}

// Appends the lowest `count` bytes of a number; those beyond its eighth are 0.
inline void AppendLittleEndian(std::string& bytes, uint64_t value, size_t count) {
  for (; count > 0; --count, value >>= 8) bytes += static_cast<char>(value & 0xFF);
}

}  // namespace orvane
