// Ice: crystals, their growing and breaking, and the pillar.
#include <cmath>
#include <numbers>

#include "content/pictures/effects/shaft.h"
#include "content/pictures/effects/shapes.h"

namespace orvane::paint::effects {

using std::numbers::pi;

Shape IceCrystal() {
  return Cluster({{-4.2, 10.2, -0.72, 12.5, 2.9},
                  {4.6, 10.2, 0.74, 12.0, 2.9},
                  {-2.6, 10.8, -0.32, 16.5, 3.3},
                  {3.0, 10.8, 0.34, 15.5, 3.2},
                  {0, 11, 0, 21.8, 4.4}},
                 0.62, kIce);
}

Shape IceGrowing(int frame) {
  const double size = 0.34 + 0.17 * frame;
  return Cluster({{-3.6, 10.6, -0.6, 13 * size, 2.6},
                  {3.8, 10.6, 0.6, 13 * size, 2.6},
                  {0, 11, 0, 21 * size, 2.6 + 0.5 * frame}},
                 0.62, kIce);
}

Shape IceBreaking(int frame) {
  return [frame](double x, double y) -> std::optional<Colour> {
    if (frame == 0) {
      const double turn = std::fmod(std::atan2(y, x) + 4 * pi + pi / 6, pi / 3) - pi / 6;
      const double distance = std::hypot(x, y);
      const double along = distance * std::cos(turn);
      const double across = std::abs(distance * std::sin(turn));
      const double branch = std::abs(across - std::max(0.0, along - 5.2));
      const bool twig = along > 5.2 && along < 8.6 && branch < 1.1;
      if (along > 11 || (across > 1.35 && !twig && distance > 3.6)) return std::nullopt;
      return kIce(across < 0.7 ? 5 : distance < 3.6 ? 4 : 2.6);
    }
    const int count = frame == 1 ? 7 : 6;
    for (int i = 0; i < count; ++i) {
      const double turn = i * 2 * pi / count + 0.4;
      const double away = frame == 1 ? (i % 2 == 0 ? 5.4 : 7.2) : 7.4;
      const double dx = x - away * std::cos(turn);
      const double dy = y - away * std::sin(turn);
      const double along = std::abs(dx * std::cos(turn) + dy * std::sin(turn));
      const double across = -dx * std::sin(turn) + dy * std::cos(turn);
      const double length = frame == 1 ? 4.2 : 3.2;
      const double width = (frame == 1 ? 3.0 : 2.4) * (1 - along / length);
      if (along > length || std::abs(across) > width) continue;
      return kIce(across < -0.2 ? 5 : across < 0.6 ? 3.5 : 1.5);
    }
    return std::nullopt;
  };
}

Shape Pillar() {
  return [](double x, double y) -> std::optional<Colour> {
    // One broad six-sided column of crystal, its top a slanting facet.
    const double top = -10.6 + std::abs(x + 1.5) * 0.95;
    if (std::abs(x) > 7.4 || y < top || y > 10.9 - std::abs(x) * 0.22) {
      return std::nullopt;
    }
    if (y < top + 1.3) return kIce(4.4);
    if (std::abs(x) > 6.5) return kIce(x < 0 ? 2.2 : 0.2);
    const double slant = y - 0.5 * x;
    const bool seam = std::fmod(slant + 40, 7.4) < 1.1;
    if (x < -2.4) return kIce(seam ? 4.4 : 3.4);
    if (x < -1.2) return kIce(5);
    if (x < 2.6) return kIce(seam ? 3.4 : 2.6);
    return kIce(seam ? 2.2 : 1.2);
  };
}

}  // namespace orvane::paint::effects
