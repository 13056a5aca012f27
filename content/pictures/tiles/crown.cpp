#include "content/pictures/tiles/crown.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "content/pictures/tiles/noise.h"

namespace orvane::paint::tiles {

std::vector<LeafDisc> Heap(const Crown& crown) {
  const double size = std::min(crown.Wide, crown.High);
  std::vector<LeafDisc> discs = {{0, 0, size * 0.72}};
  const int around = 9;
  for (int i = 0; i < around; ++i) {
    // From the back to the front, so that the near discs lie on top.
    const int step = (i + 1) / 2;
    const double turn =
        -std::numbers::pi / 2 + (i % 2 == 0 ? 2.0 : -2.0) * step * std::numbers::pi / around;
    const double radius = size * (0.34 + 0.12 * Hash(i, crown.Seed, 461));
    discs.push_back(
        {std::cos(turn) * (crown.Wide - radius), std::sin(turn) * (crown.High - radius), radius});
  }
  discs.push_back({-crown.Wide * 0.30, -crown.High * 0.28, size * 0.44});
  discs.push_back({crown.Wide * 0.32, -crown.High * 0.05, size * 0.36});
  discs.push_back({-crown.Wide * 0.05, crown.High * 0.34, size * 0.38});
  return discs;
}

void PaintCrown(Image& image, const Crown& crown, const std::vector<LeafDisc>& discs,
                const Ramp<7>& ramp) {
  constexpr int Clear = -1;
  std::vector<int> tones(image.Pixels.size(), Clear);
  const auto index = [&](int x, int y) {
    return static_cast<size_t>(y) * static_cast<size_t>(image.Width) + static_cast<size_t>(x);
  };
  for (const LeafDisc& disc : discs) {
    for (int y = 0; y < image.Height; ++y) {
      for (int x = 0; x < image.Width; ++x) {
        const double dx = (x - crown.X - disc.X) / disc.Radius;
        const double dy = (y - crown.Y - disc.Y) / disc.Radius;
        const double reach = dx * dx + dy * dy + 0.30 * (Hash(x * 3, y * 5, crown.Seed) - 0.5);
        if (reach > 1) continue;
        const double gx = (x - crown.X) / crown.Wide;
        const double gy = (y - crown.Y) / crown.High;
        double tone = 3.2 - 1.3 * gx - 1.7 * gy - 1.0 * dx - 1.3 * dy + crown.Lift;
        tone += 1.0 * (Hash(x / 2, y / 2, crown.Seed + 7) - 0.5);
        if (reach > 0.72 && dy > 0.1) tone -= 1.1;
        tones[index(x, y)] = std::clamp(static_cast<int>(std::floor(tone)), 1, 6);
      }
    }
  }
  for (int y = 0; y < image.Height; ++y) {
    for (int x = 0; x < image.Width; ++x) {
      if (tones[index(x, y)] == Clear) continue;
      bool rim = false;
      for (const auto& [i, j] : {std::pair{1, 0}, {-1, 0}, {0, 1}, {0, -1}}) {
        const int nx = x + i;
        const int ny = y + j;
        if (nx < 0 || ny < 0 || nx >= image.Width || ny >= image.Height) continue;
        rim = rim || tones[index(nx, ny)] == Clear;
      }
      image.At(x, y) = rim ? ramp[0] : ramp[tones[index(x, y)]];
    }
  }
}

}  // namespace orvane::paint::tiles
