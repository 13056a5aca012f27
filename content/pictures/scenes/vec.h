// Points and directions in a scene: x to the right, y up, z away from the eye.
#pragma once

#include <cmath>

namespace orvane::paint::scene {

struct Vec {
  float x = 0;
  float y = 0;
  float z = 0;
};

constexpr Vec operator+(Vec a, Vec b) {
  return {a.x + b.x, a.y + b.y, a.z + b.z};
}
constexpr Vec operator-(Vec a, Vec b) {
  return {a.x - b.x, a.y - b.y, a.z - b.z};
}
constexpr Vec operator*(Vec a, float k) {
  return {a.x * k, a.y * k, a.z * k};
}
constexpr float Dot(Vec a, Vec b) {
  return a.x * b.x + a.y * b.y + a.z * b.z;
}
inline float Length(Vec a) {
  return std::sqrt(Dot(a, a));
}
// The same direction with length 1; the vector must not be zero.
inline Vec Unit(Vec a) {
  return a * (1 / Length(a));
}

}  // namespace orvane::paint::scene
