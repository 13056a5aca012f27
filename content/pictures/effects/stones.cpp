// Rock and dust.
#include <algorithm>
#include <cmath>
#include <numbers>

#include "content/pictures/effects/shaft.h"
#include "content/pictures/effects/shapes.h"

namespace orvane::paint::effects {
namespace {

using std::numbers::pi;

// A lump with flat faces: lit above and to the left.
std::optional<Colour> Lump(double x, double y, double radius, double turn, const SixTones& ramp) {
  const double direction = std::atan2(y, x) + turn;
  const double face = std::fmod(direction + 4 * pi, pi / 3) - pi / 6;
  const double rim = radius * std::cos(pi / 6) / std::cos(face);
  const double distance = std::hypot(x, y);
  if (distance > rim) return std::nullopt;
  const double middle = direction - turn - face;
  const double light = -(0.55 * std::cos(middle) + 0.83 * std::sin(middle));
  if (distance < rim * 0.42) return ramp(3.6);
  return ramp(2.3 + 2.3 * light - (distance > rim - 0.9 ? 0.9 : 0));
}

}  // namespace

Shape RockSpire() {
  return Cluster({{-0.6, 10.8, -0.02, 21.4, 5.6},
                  {-6.4, 10.8, -0.30, 13.5, 4.2},
                  {6.2, 10.8, 0.28, 12.0, 4.4},
                  {2.6, 10.9, 0.12, 9.0, 4.6},
                  {-3.0, 10.9, -0.12, 7.0, 4.0}},
                 0.30, kEarth);
}

Shape Boulder() {
  return [](double x, double y) { return Lump(x, y, 10.8, 0.35, kEarth); };
}

Shape RockShards() {
  return [](double x, double y) -> std::optional<Colour> {
    constexpr std::array<std::array<double, 3>, 6> Places{{{-6, -5.5, 4.2},
                                                           {5.5, -6.5, 3.4},
                                                           {7, 2.5, 3.7},
                                                           {0, 0.5, 4.0},
                                                           {-6.5, 5.5, 3.4},
                                                           {3, 7.6, 3.2}}};
    double turn = 0;
    for (const auto& place : Places) {
      turn += 0.9;
      const auto colour = Lump(x - place[0], y - place[1], place[2], turn, kEarth);
      if (colour) return colour;
    }
    return std::nullopt;
  };
}

Shape Dust(int frame) {
  return [frame](double x, double y) -> std::optional<Colour> {
    constexpr std::array<std::array<double, 3>, 5> Puffs{
        {{-5.5, 3.5, 5.2}, {5.8, 3.8, 5.0}, {0, 5.2, 5.6}, {-2.5, -2.0, 5.2}, {3.6, -3.6, 4.4}}};
    double best = -1;
    for (const auto& puff : Puffs) {
      const double radius = puff[2] * (frame == 0 ? 1 : 0.86);
      const double depth = 1 - std::hypot(x - puff[0], y - puff[1]) / radius;
      const double light = -(0.5 * (x - puff[0]) + 0.7 * (y - puff[1])) / radius;
      if (depth > 0) best = std::max(best, 1.6 + depth + 1.7 * light);
    }
    if (best < 0) return std::nullopt;
    if (frame == 1 && Wander(x * 0.45 + 5, y * 0.45 + 5, 61) > 0.56) return std::nullopt;
    return kSmoke(best + (frame == 0 ? 1.3 : 1.9));
  };
}

}  // namespace orvane::paint::effects
