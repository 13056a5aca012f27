// Repeatable chance.
#pragma once

#include <cstdint>

namespace orvane::paint {

// 32 bits that look like chance and depend on nothing but the three numbers. Whole numbers only, so
// that no rounding can make them differ from machine to machine.
constexpr uint32_t HashOf(int x, int y, int z) {
  uint32_t bits = static_cast<uint32_t>(x) * 0x8DA6B343U ^ static_cast<uint32_t>(y) * 0xD8163841U ^
                  static_cast<uint32_t>(z) * 0xCB1AB31FU;
  bits = (bits ^ bits >> 15) * 0x2C1B3C6DU;
  bits = (bits ^ bits >> 12) * 0x297A2D39U;
  return bits ^ bits >> 15;
}

}  // namespace orvane::paint
