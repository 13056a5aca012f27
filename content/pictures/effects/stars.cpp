// Sparkles, darkness and impacts.
#include <algorithm>
#include <cmath>
#include <numbers>

#include "content/pictures/effects/shapes.h"

namespace orvane::paint::effects {
namespace {

using std::numbers::pi;

// A star of four hollow-sided points: below 1 inside, 0 in its heart.
double FourPoints(double x, double y, double reach) {
  return std::pow(std::abs(x) / reach, 0.62) + std::pow(std::abs(y) / reach, 0.62);
}

}  // namespace

Shape Sparkle(int frame) {
  return [frame](double x, double y) -> std::optional<Colour> {
    const auto star = [](double dx, double dy, double reach) -> double {
      return std::min(FourPoints(dx, dy, reach), std::hypot(dx, dy) / (reach * 0.34));
    };
    const double turned_x = (x + y) * 0.7071;
    const double turned_y = (y - x) * 0.7071;
    double depth = 2;
    switch (frame) {
      case 0:
        depth = std::min(star(x, y, 11.4), star(turned_x, turned_y, 6.6));
        break;
      case 1:
        depth = star(x, y, 7.5);
        break;
      case 2:
        depth = std::min(star(turned_x, turned_y, 10.5), star(x, y, 6));
        break;
      default:
        for (int i = 0; i < 6; ++i) {
          const double turn = i * pi / 3 + 0.3;
          depth = std::min(depth, star(x - 7.2 * std::cos(turn), y - 7.2 * std::sin(turn), 3.6));
        }
    }
    if (depth > 1) return std::nullopt;
    return kStar(5.9 - 5.2 * depth * depth);
  };
}

Shape LeafStar() {
  return [](double x, double y) -> std::optional<Colour> {
    // Four blades shaped like leaves, turning around a bright heart.
    double best = -1;
    for (int i = 0; i < 4; ++i) {
      const double turn = i * pi / 2 + 0.5;
      const double along = x * std::cos(turn) + y * std::sin(turn);
      const double bend = 0.045 * along * along;
      const double across = -x * std::sin(turn) + y * std::cos(turn) - bend;
      if (along < 0 || along > 11.3) continue;
      const double width = 3.9 * std::sin(pi * std::pow(along / 11.3, 0.8));
      best = std::max(best, 1 - std::abs(across) / std::max(0.5, width));
      if (best > 0.72 && along > 3) return kWind(3.2);
    }
    const double heart = 1 - std::hypot(x, y) / 4.2;
    if (heart > 0) return kWind(3.4 + 3 * heart);
    if (best <= 0) return std::nullopt;
    return kWind(0.6 + 3.4 * best);
  };
}

Shape Impact(int frame) {
  return [frame](double x, double y) -> std::optional<Colour> {
    const double distance = std::hypot(x, y);
    const double turn = std::atan2(y, x);
    if (frame < 2) {
      const double points = frame == 0 ? 1.6 : 3.2;
      const double rim = (frame == 0 ? 5.8 : 8.0) + points * std::cos(turn * 6 + 0.5);
      if (distance > rim) return std::nullopt;
      return kForce(5.9 - 5.4 * std::pow(distance / rim, 1.5));
    }
    // A ring that runs outward and breaks into shards.
    const double part = std::fmod(turn / (2 * pi) * 9 + frame * 0.4 + 18, 1.0);
    const double shards = 1 - 4 * std::abs(part - 0.5);  // 1 in the middle of a shard
    const double rim = frame == 2 ? 9.4 + 2.0 * shards : 11.3;
    const double thick = frame == 2 ? 5.6 : 5.4 + 1.6 * shards;
    if (frame == 2 && distance < 2.8) return kForce(5);
    if (frame > 2 && shards < -0.35) return std::nullopt;
    if (distance > rim || distance < rim - thick) return std::nullopt;
    if (rim - distance < 0.9) return kForce(1);
    return kForce(5.6 - 5.2 * (rim - distance) / thick);
  };
}

Shape DarkBurst(int frame) {
  return [frame](double x, double y) -> std::optional<Colour> {
    const double distance = std::hypot(x, y);
    const double turn = std::atan2(y, x);
    const double spike = std::pow(std::abs(std::cos(turn * 4.5 + 0.6)), 2.2);
    const double rim =
        6.2 +
        5.1 * spike * (0.72 + 0.4 * Wander(8 + 2 * std::cos(turn), 8 + 2 * std::sin(turn), 31));
    const double hole = frame == 0 ? 0 : 4.6;
    if (distance > rim || distance < hole) return std::nullopt;
    const double grain = 1.4 * (Wander(x * 0.5 + 20, y * 0.5 + 20, 33) - 0.5);
    return kBlood(5.9 - 5.6 * std::pow(distance / rim, frame == 0 ? 0.9 : 1.6) + grain);
  };
}

Shape DarkOrb(int frame) {
  return [frame](double x, double y) -> std::optional<Colour> {
    const double distance = std::hypot(x, y);
    if (frame == 0) {
      if (distance > 10.4) return std::nullopt;
      const double light = -(x * 0.5 + y * 0.7) / 10.4;
      return kShade(distance > 9.2 ? 3.4 : distance > 7.8 ? 2.2 : 0.6 + 1.6 * light);
    }
    const double whirl = std::cos(2 * std::atan2(y, x) + distance * 0.62);
    if (distance > 11 || (whirl < 0.05 && distance > 3)) return std::nullopt;
    return kShade(4.9 * whirl * (1 - distance / 15));
  };
}

}  // namespace orvane::paint::effects
