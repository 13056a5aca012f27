#include <cstdint>

#include "content/pictures/figures/vec.h"

namespace orvane::paint {
namespace {

// Whole numbers only, so that no rounding of a sine can change the pattern.
float Scatter(int x, int y, int z) {
  uint32_t h = static_cast<uint32_t>(x) * 0x8DA6B343U ^ static_cast<uint32_t>(y) * 0xD8163841U ^
               static_cast<uint32_t>(z) * 0xCB1AB31FU;
  h ^= h >> 15;
  h *= 0x2C1B3C6DU;
  h ^= h >> 12;
  h *= 0x297A2D39U;
  h ^= h >> 15;
  return static_cast<float>(h & 0xFFFFU) / 65535.0F;
}

}  // namespace

float Noise(Vec p) {
  const float fx = std::floor(p.X);
  const float fy = std::floor(p.Y);
  const float fz = std::floor(p.Z);
  const Vec t{SmoothStep(0, 1, p.X - fx), SmoothStep(0, 1, p.Y - fy), SmoothStep(0, 1, p.Z - fz)};
  const int x = static_cast<int>(fx);
  const int y = static_cast<int>(fy);
  const int z = static_cast<int>(fz);
  float sum = 0;
  for (int corner = 0; corner < 8; ++corner) {
    const int i = corner & 1;
    const int j = corner >> 1 & 1;
    const int k = corner >> 2;
    sum += Scatter(x + i, y + j, z + k) * (i != 0 ? t.X : 1 - t.X) * (j != 0 ? t.Y : 1 - t.Y) *
           (k != 0 ? t.Z : 1 - t.Z);
  }
  return sum;
}

}  // namespace orvane::paint
