// Points and directions in space, and the small arithmetic that every picture needs.
#pragma once

#include <algorithm>
#include <cmath>

namespace orvane::paint {

struct Vec {
  float X = 0;
  float Y = 0;
  float Z = 0;
};

constexpr Vec operator+(Vec a, Vec b) {
  return {a.X + b.X, a.Y + b.Y, a.Z + b.Z};
}
constexpr Vec operator-(Vec a, Vec b) {
  return {a.X - b.X, a.Y - b.Y, a.Z - b.Z};
}
constexpr Vec operator*(Vec a, float s) {
  return {a.X * s, a.Y * s, a.Z * s};
}

constexpr float Dot(Vec a, Vec b) {
  return a.X * b.X + a.Y * b.Y + a.Z * b.Z;
}
inline float Length(Vec a) {
  return std::sqrt(Dot(a, a));
}
// The direction of a at length 1; a zero vector stays zero.
inline Vec Unit(Vec a) {
  const float length = Length(a);
  return length > 0 ? a * (1 / length) : a;
}

constexpr float Clamp(float x, float low = 0, float high = 1) {
  return std::clamp(x, low, high);
}
constexpr float Mix(float a, float b, float t) {
  return a + (b - a) * t;
}
// 0 up to `from`, 1 from `to` on, a soft step between; the two must differ.
constexpr float SmoothStep(float from, float to, float x) {
  const float t = Clamp((x - from) / (to - from));
  return t * t * (3 - 2 * t);
}

}  // namespace orvane::paint
