// Colours in floating point, and the ramps that light indexes.
#pragma once

#include <cstdint>
#include <span>

#include "content/pictures/shared/vec.h"

namespace orvane::paint::scene {

// Red, green and blue, 0 to 1 each; values outside are cut when the colour becomes a pixel.
struct Colour {
  float R = 0;
  float G = 0;
  float B = 0;
};

constexpr Colour operator+(Colour a, Colour b) {
  return {a.R + b.R, a.G + b.G, a.B + b.B};
}
constexpr Colour operator-(Colour a, Colour b) {
  return {a.R - b.R, a.G - b.G, a.B - b.B};
}
constexpr Colour operator*(Colour a, float k) {
  return {a.R * k, a.G * k, a.B * k};
}

// A run of colours from dark to light, each 0xRRGGBB; never empty.
using RampView = std::span<const uint32_t>;

// The colour 0xRRGGBB.
constexpr Colour Hex(uint32_t rgb) {
  return {static_cast<float>(rgb >> 16 & 0xFF) / 255, static_cast<float>(rgb >> 8 & 0xFF) / 255,
          static_cast<float>(rgb & 0xFF) / 255};
}

using paint::Mix;
// From `from` at t = 0 to `to` at t = 1; t is cut to that range.
constexpr Colour Mix(Colour from, Colour to, float t) {
  return from + (to - from) * Clamp(t);
}

// The ramp's colour at t, 0 the darkest and 1 the lightest, blended between neighbours.
Colour OnRamp(RampView ramp, float t);

// The nearest 24-bit pixel.
uint32_t ToPixel(Colour colour);

}  // namespace orvane::paint::scene
