// Colours from dark to light, which light indexes.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace orvane::paint {

// Each 0xRRGGBB. A tone outside is taken as the nearest end.
template <size_t Count>
struct Ramp {
  std::array<uint32_t, Count> Tones;

  constexpr uint32_t operator[](int index) const {
    const int last = static_cast<int>(Count) - 1;
    return Tones[static_cast<size_t>(index < 0 ? 0 : index > last ? last : index)];
  }
  // The tone at or below a place between tones.
  constexpr uint32_t operator()(double tone) const {
    constexpr int kLast = static_cast<int>(Count) - 1;
    return (*this)[tone < 0 ? 0 : tone >= kLast ? kLast : static_cast<int>(tone)];
  }
};

}  // namespace orvane::paint
