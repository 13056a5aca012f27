// Points, directions and the small arithmetic of the figure models. A unit is about one pixel.
#pragma once

#include <algorithm>
#include <cmath>

namespace orvane::paint {

struct Vec {
  float X = 0;
  float Y = 0;
  float Z = 0;
};

inline Vec operator+(Vec a, Vec b) {
  return {a.X + b.X, a.Y + b.Y, a.Z + b.Z};
}
inline Vec operator-(Vec a, Vec b) {
  return {a.X - b.X, a.Y - b.Y, a.Z - b.Z};
}
inline Vec operator*(Vec a, float s) {
  return {a.X * s, a.Y * s, a.Z * s};
}

inline float Dot(Vec a, Vec b) {
  return a.X * b.X + a.Y * b.Y + a.Z * b.Z;
}
inline float Length(Vec a) {
  return std::sqrt(Dot(a, a));
}
inline Vec Cross(Vec a, Vec b) {
  return {a.Y * b.Z - a.Z * b.Y, a.Z * b.X - a.X * b.Z, a.X * b.Y - a.Y * b.X};
}
// The direction of a at length 1; a zero vector stays zero.
inline Vec Unit(Vec a) {
  const float length = Length(a);
  return length > 0 ? a * (1 / length) : a;
}

inline float Clamp(float x) {
  return std::clamp(x, 0.0F, 1.0F);
}
inline float Mix(float a, float b, float t) {
  return a + (b - a) * t;
}
inline Vec Mix(Vec a, Vec b, float t) {
  return a + (b - a) * t;
}
// 0 up to `from`, 1 from `to` on, a soft step between.
inline float SmoothStep(float from, float to, float x) {
  const float t = Clamp((x - from) / (to - from));
  return t * t * (3 - 2 * t);
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
