// The arithmetic of the figure models, on points and directions. A unit is about one pixel.
#pragma once

#include <algorithm>
#include <cmath>

#include "content/pictures/shared/vec.h"

namespace orvane::paint {

inline Vec Cross(Vec a, Vec b) {
  return {a.Y * b.Z - a.Z * b.Y, a.Z * b.X - a.X * b.Z, a.X * b.Y - a.Y * b.X};
}
inline Vec Mix(Vec a, Vec b, float t) {
  return a + (b - a) * t;
}
// The part of x after its whole number, 0 to below 1.
inline float Fraction(float x) {
  return x - std::floor(x);
}
// The smaller of both, rounded where they meet over the width k; k of 0 gives a hard seam.
inline float SmoothMin(float a, float b, float k) {
  if (k <= 0) return std::min(a, b);
  const float h = std::max(k - std::fabs(a - b), 0.0F) / k;
  return std::min(a, b) - h * h * k * 0.25F;
}

// Turns about an axis by an angle in radians.
inline Vec TurnX(Vec p, float angle) {
  const float c = std::cos(angle);
  const float s = std::sin(angle);
  return {p.X, p.Y * c - p.Z * s, p.Y * s + p.Z * c};
}
inline Vec TurnY(Vec p, float angle) {
  const float c = std::cos(angle);
  const float s = std::sin(angle);
  return {p.X * c + p.Z * s, p.Y, p.Z * c - p.X * s};
}
inline Vec TurnZ(Vec p, float angle) {
  const float c = std::cos(angle);
  const float s = std::sin(angle);
  return {p.X * c - p.Y * s, p.X * s + p.Y * c, p.Z};
}

// Smooth noise, 0 to 1, one lump per unit; the same on every machine.
float Noise(Vec p);

}  // namespace orvane::paint
