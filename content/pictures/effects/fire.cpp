// Flames, explosions and the great blasts.
#include <algorithm>
#include <cmath>

#include "content/pictures/effects/shapes.h"

namespace orvane::paint::effects {
namespace {

// How deep (x, y) lies in a tongue that stands on (root_x, root_y): 1 in its heart, 0 at its rim.
double InTongue(double x, double y, double root_x, double root_y, double height, double width,
                double bend) {
  const double t = (root_y - y) / height;
  if (t < -0.2 || t > 1) return -1;
  const double middle = root_x + bend * std::sin(2.4 * t) * t;
  const double swell = t < 0.1 ? std::sqrt(std::max(0.0, 1 - std::pow((0.1 - t) / 0.3, 2)))
                               : std::pow(1 - (t - 0.1) / 0.9, 0.75);
  return 1 - std::abs(x - middle) / std::max(0.4, width * swell);
}

}  // namespace

Shape FireBall() {
  return [](double x, double y) -> std::optional<Colour> {
    const double body = 1 - std::hypot(x / 8.6, (y - 3.2) / 7.6);
    const double tongue =
        std::max({InTongue(x, y, 0.5, 3, 14.4, 7.4, -3.0), InTongue(x, y, -5.4, 4, 11.5, 3.8, -1.8),
                  InTongue(x, y, 5.6, 4, 9.5, 3.6, 3.4)});
    const double depth = std::max(body, tongue);
    if (depth <= 0) return std::nullopt;
    const double heart = 1 - std::hypot((x + 0.3) / 7.6, (y - 4.6) / 9.8);
    return kFire(0.4 + 3.6 * std::min(depth, 0.75) + 3.6 * std::max(0.0, heart) - 0.6);
  };
}

Shape Flame(int frame) {
  return [frame](double x, double y) -> std::optional<Colour> {
    const double tall = frame == 0 ? 11 : 17;
    const double wide = frame == 0 ? 5.0 : 7.0;
    const double depth = std::max({InTongue(x, y, 0, 7.2, tall, wide, 2.6),
                                   InTongue(x, y, -4.6, 8, tall * 0.6, wide * 0.6, -2.5),
                                   InTongue(x, y, 4.8, 8, tall * 0.72, wide * 0.55, 2.0)});
    if (depth <= 0) return std::nullopt;
    const double high = (7.2 - y) / tall;
    if (frame == 2 && high > 0.45) return kSmoke(1.2 + 2.6 * depth);
    return kFire(0.4 + 5.8 * depth * (1.15 - 0.75 * high));
  };
}

Shape Explosion(int frame) {
  constexpr int fiery = 5;
  constexpr std::array<double, fiery> Reach{3.8, 6.4, 8.8, 10.6, 11.2};
  constexpr std::array<double, fiery> Hollow{0, 0, 0, 2.4, 5.2};
  constexpr std::array<double, fiery> Heat{6.5, 6.4, 5.8, 5.0, 4.0};
  if (frame >= fiery) return BlastSmoke(frame - fiery);
  const auto at = static_cast<size_t>(std::max(0, frame));
  return [=](double x, double y) -> std::optional<Colour> {
    const double distance = std::hypot(x, y);
    const double turn = std::atan2(y, x);
    const double billow =
        Wander(7 + std::cos(turn) * 2.4 + frame * 0.2, 7 + std::sin(turn) * 2.4, 9);
    const double rim = Reach[at] * (0.74 + 0.34 * billow);
    const double hole = Hollow[at] * (0.5 + 0.9 * Wander(x * 0.4 + 9, y * 0.4 + 9, 7));
    if (distance > rim || distance < hole) return std::nullopt;
    const double grain = 2.2 * (Wander(x * 0.42 + 20, y * 0.42 + 20 + frame, 11) - 0.5);
    const double tone = Heat[at] * (1 - distance / rim) + 0.9 + grain;
    return kFire(tone);
  };
}

Shape Atom(int frame) {
  return [frame](double x, double y) -> std::optional<Colour> {
    const double distance = std::hypot(x, y);
    const double turn = std::atan2(y, x);
    const double points = frame == 0 ? 0.8 : frame == 1 ? 1.6 : 2.6;
    const double rim = 8.6 + points * std::cos(turn * (frame == 2 ? 10 : 8) + frame);
    if (distance > rim) return std::nullopt;
    const double band = std::abs(distance - rim * 0.66) < 0.9 && frame != 2 ? -1.6 : 0;
    return kFire(5.9 * (1 - distance / rim) * (frame == 2 ? 1.5 : 1.25) + 0.9 + band);
  };
}

Shape Sun() {
  return [](double x, double y) -> std::optional<Colour> {
    // Folded into one eighth, so that it stays true when a pixel grows to eighteen.
    const double far = std::max(std::abs(x), std::abs(y));
    const double near = std::min(std::abs(x), std::abs(y));
    const double distance = std::hypot(x, y);
    if (distance < 7.2) {
      const double tone = distance < 3.3 ? 5 : distance < 4.9 ? 4 : distance < 6.3 ? 3 : 2;
      return kSunlight(tone);
    }
    // A long ray along each axis and a shorter one between; both pale to orange outward.
    const double between = (far - near) * 0.7071;
    const double slanted = (far + near) * 0.7071;
    const double long_ray = near - (11.8 - far) * 0.72;
    const double short_ray = between - (10.4 - slanted) * 0.85;
    const double depth = -std::min(long_ray, short_ray);
    if (depth < 0) return std::nullopt;
    return kSunlight(depth > 1.4 && distance < 9.2 ? 2 : depth > 0.7 ? 1 : 0);
  };
}

Shape LightRing(int frame) {
  return [frame](double x, double y) -> std::optional<Colour> {
    const double distance = std::hypot(x, y);
    const double rim = frame == 0 ? 7.5 : frame == 1 ? 9.5 : 10.8;
    const double thick = frame == 0 ? 3.6 : frame == 1 ? 2.8 : 1.8;
    const double off = std::abs(distance - rim + thick / 2);
    if (frame == 0 && distance < 2.2) return kStar(5);
    if (off > thick / 2 + 0.3) return std::nullopt;
    return kStar(5.4 - 4.4 * off / thick * 1.6);
  };
}

}  // namespace orvane::paint::effects
