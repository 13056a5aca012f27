// Sums by which bytes are told apart, equal on every system: FNV-1a, of 64 bits. No secret is safe
// with them.
#pragma once

#include <cstdint>
#include <string_view>

namespace orvane {

class ByteSum {
 public:
  uint64_t Value() const { return value_; }

  // Adds a byte, or a number of 32 bits in one step, which is another sum than that of its bytes.
  void Add(uint32_t part) {
    constexpr uint64_t prime = 0x100000001B3;
    value_ = (value_ ^ part) * prime;
  }
  void Add(std::string_view bytes) {
    for (const char byte : bytes) Add(static_cast<unsigned char>(byte));
  }

 private:
  uint64_t value_ = 0xCBF29CE484222325;
};

inline uint64_t SumOfBytes(std::string_view bytes) {
  ByteSum sum;
  sum.Add(bytes);
  return sum.Value();
}

}  // namespace orvane
