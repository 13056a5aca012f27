// The smoke that an explosion leaves.
#include <cmath>
#include <numbers>

#include "content/pictures/effects/shapes.h"

namespace orvane::paint::effects {
namespace {

using std::numbers::pi;

// A ball of smoke: its place, its radius, and how far the embers in it still glow, 0 to 1.
struct Puff {
  double X;
  double Y;
  double Radius;
  double Glow;
};

std::vector<Puff> Ring(int count, double reach, double radius, double glow, double turned) {
  std::vector<Puff> puffs;
  for (int i = 0; i < count; ++i) {
    const double turn = turned + 2 * pi * i / count;
    const double swing = i % 2 == 0 ? 1 : 0.86;
    puffs.push_back({reach * swing * std::cos(turn), reach * swing * std::sin(turn),
                     radius * (i % 3 == 0 ? 1.12 : 0.9), glow * (i % 2 == 0 ? 1 : 0.6)});
  }
  return puffs;
}

}  // namespace

Shape BlastSmoke(int frame) {
  const std::vector<Puff> puffs =
      frame == 0 ? Ring(8, 6.4, 4.6, 1, 0.3) : Ring(9, 7.8, 3.2, 0.5, 0.75);
  return [=](double x, double y) -> std::optional<Colour> {
    // Billows: each place belongs to the puff that it lies deepest in.
    double depth = 0;
    double light = 0;
    double ember = 0;
    for (const Puff& puff : puffs) {
      const double dx = x - puff.X;
      const double dy = y - puff.Y;
      const double here = 1 - std::hypot(dx, dy) / puff.Radius;
      if (here <= depth) continue;
      depth = here;
      light = -(0.55 * dx + 0.83 * dy) / puff.Radius;
      // Embers glow on the side that is turned to the middle.
      ember = -(dx * puff.X + dy * puff.Y) / std::hypot(puff.X, puff.Y) / puff.Radius * puff.Glow;
    }
    if (depth <= 0) return std::nullopt;
    const double wisp = Wander(x * 0.5 + 30 + 7 * frame, y * 0.5 + 30, 12);
    if (frame > 0 && wisp > 0.62 && ember < 0.4) return std::nullopt;
    const double heat = ember + 0.7 * (wisp - 0.5) - 0.34;
    if (heat > 0) return kFire(0.8 + 7.5 * heat);
    return kAsh(2.9 + 1.7 * light + 0.9 * depth - 1.2 * (wisp - 0.5));
  };
}

}  // namespace orvane::paint::effects
