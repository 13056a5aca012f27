#include "content/pictures/figures/vec.h"
#include "content/pictures/shared/hash.h"

namespace orvane::paint {
namespace {

float Scatter(int x, int y, int z) {
  return static_cast<float>(HashOf(x, y, z) & 0xFFFFU) / 65535.0F;
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
