// Sparkles, darkness, impacts and blade marks.
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
    return Star(5.9 - 5.2 * depth * depth);
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
      if (best > 0.72 && along > 3) return Wind(3.2);
    }
    const double heart = 1 - std::hypot(x, y) / 4.2;
    if (heart > 0) return Wind(3.4 + 3 * heart);
    if (best <= 0) return std::nullopt;
    return Wind(0.6 + 3.4 * best);
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
      return Force(5.9 - 5.4 * std::pow(distance / rim, 1.5));
    }
    // A ring that runs outward and breaks into shards.
    const double part = std::fmod(turn / (2 * pi) * 9 + frame * 0.4 + 18, 1.0);
    const double shards = 1 - 4 * std::abs(part - 0.5);  // 1 in the middle of a shard
    const double rim = frame == 2 ? 9.4 + 2.0 * shards : 11.3;
    const double thick = frame == 2 ? 5.6 : 5.4 + 1.6 * shards;
    if (frame == 2 && distance < 2.8) return Force(5);
    if (frame > 2 && shards < -0.35) return std::nullopt;
    if (distance > rim || distance < rim - thick) return std::nullopt;
    if (rim - distance < 0.9) return Force(1);
    return Force(5.6 - 5.2 * (rim - distance) / thick);
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
    return Blood(5.9 - 5.6 * std::pow(distance / rim, frame == 0 ? 0.9 : 1.6) + grain);
  };
}

Shape DarkOrb(int frame) {
  return [frame](double x, double y) -> std::optional<Colour> {
    const double distance = std::hypot(x, y);
    if (frame == 0) {
      if (distance > 10.4) return std::nullopt;
      const double light = -(x * 0.5 + y * 0.7) / 10.4;
      return Shade(distance > 9.2 ? 3.4 : distance > 7.8 ? 2.2 : 0.6 + 1.6 * light);
    }
    const double whirl = std::cos(2 * std::atan2(y, x) + distance * 0.62);
    if (distance > 11 || (whirl < 0.05 && distance > 3)) return std::nullopt;
    return Shade(4.9 * whirl * (1 - distance / 15));
  };
}

Shape Slash(int frame) {
  return [frame](double x, double y) -> std::optional<Colour> {
    // A crescent from the upper right to the lower left; its outer edge is the bright one.
    const double distance = std::hypot(x + 8.5, y + 8.5);
    const double turn = std::atan2(y + 8.5, x + 8.5) / (pi / 2);
    const double from = frame == 0 ? -0.14 : frame == 1 ? -0.17 : 0.40;
    const double to = frame == 0 ? 0.55 : frame == 1 ? 1.17 : 1.14;
    const double along = (turn - from) / (to - from);
    if (along <= 0 || along >= 1) return std::nullopt;
    const double thick = (frame == 1 ? 9.0 : 5.6) * std::pow(std::sin(pi * along), 0.75);
    const double inward = 19.0 - distance;
    if (thick < 1.6 || inward < 0 || inward > thick) return std::nullopt;
    const double share = inward / std::max(thick, 0.1);
    return Steel(share < 0.14   ? 1.4
                 : share < 0.50 ? 5
                 : share < 0.68 ? 3.4
                 : share < 0.84 ? 2.4
                                : 0.6);
  };
}

Shape Thrust() {
  return [](double x, double y) -> std::optional<Colour> {
    // A lance of light that drives to the left and bursts where its point strikes.
    const double along = (x + 11.2) / 22.4;
    if (along < 0 || along > 1) return std::nullopt;
    const double width = along < 0.3 ? 4.0 * along / 0.3 : 4.0 * std::pow((1 - along) / 0.7, 0.6);
    const double lance = 1 - std::abs(y) / std::max(0.5, width);
    const double dx = x + 4.5;
    const double burst =
        1 - std::pow(std::abs(dx) / 6.8, 0.72) - std::pow(std::abs(y) / 11.4, 0.72);
    const double slanted_x = std::abs(dx + y) * 0.7071;
    const double slanted_y = std::abs(dx - y) * 0.7071;
    const double rays = 1 - std::pow(slanted_x / 7.4, 0.62) - std::pow(slanted_y / 7.4, 0.62);
    const double depth = std::max({lance, 1.6 * burst, 1.6 * rays});
    if (depth <= 0) return std::nullopt;
    return Steel(depth < 0.16 ? 0.5 : 1.0 + 5.6 * depth);
  };
}

}  // namespace orvane::paint::effects
