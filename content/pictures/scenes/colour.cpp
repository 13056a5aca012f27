#include "content/pictures/scenes/colour.h"

#include <cmath>

namespace orvane::paint::scene {

Colour OnRamp(RampView ramp, float t) {
  const float place = Clamp(t) * static_cast<float>(ramp.size() - 1);
  const size_t below = std::min(static_cast<size_t>(place), ramp.size() - 1);
  const size_t above = std::min(below + 1, ramp.size() - 1);
  return Mix(Hex(ramp[below]), Hex(ramp[above]), place - static_cast<float>(below));
}

uint32_t ToPixel(Colour colour) {
  const auto level = [](float value) {
    return static_cast<uint32_t>(std::lround(Clamp(value) * 255));
  };
  return level(colour.R) << 16 | level(colour.G) << 8 | level(colour.B);
}

}  // namespace orvane::paint::scene
