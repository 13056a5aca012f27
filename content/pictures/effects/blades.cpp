// What blades leave in the air: the slash's crescent and the thrust's lance.
#include <algorithm>
#include <cmath>
#include <numbers>

#include "content/pictures/effects/shapes.h"

namespace orvane::paint::effects {
namespace {

using std::numbers::pi;

// A number in [0, 1) for each streak of a crescent.
double Scatter(int streak) {
  return std::fmod(streak * 0.618034 + 0.31, 1.0);
}

// From how far along the crescent to how far a frame shows it, and how thick it is.
struct Sweep {
  double From;
  double To;
  double Thick;
};

}  // namespace

Shape Slash(int frame) {
  constexpr std::array<Sweep, 3> sweeps{
      {{-0.20, 0.72, 7.2}, {-0.20, 1.20, 10.6}, {0.14, 1.20, 7.2}}};
  const Sweep sweep = sweeps[static_cast<size_t>(std::clamp(frame, 0, 2))];
  return [=](double x, double y) -> std::optional<Colour> {
    // The blade has run around (-8.5, -8.5), from the upper right to the lower left. Its path is
    // white-hot at the outer edge; inward it cools and tears into streaks.
    const double distance = std::hypot(x + 8.5, y + 8.5);
    const double turn = std::atan2(y + 8.5, x + 8.5) / (pi / 2);
    const double along = (turn - sweep.From) / (sweep.To - sweep.From);
    const double inward = 19.6 - distance;
    if (along <= 0 || along >= 1 || inward < 0) return std::nullopt;
    const double thick = sweep.Thick * std::pow(std::sin(pi * std::pow(along, 0.86)), 0.8);
    if (thick < 1.5 || inward > thick) return std::nullopt;
    const double share = inward / thick;
    const int streak = static_cast<int>(inward / 1.15);
    const double torn = frame == 2 ? 0.22 : 0.48;
    if (share > torn) {
      const double begins = 0.10 + 0.34 * Scatter(streak) + (frame == 2 ? 0.14 : 0);
      const double ends = 0.96 - 0.30 * Scatter(streak + 5);
      if (along < begins || along > ends) return std::nullopt;
      if (frame == 2 && streak % 2 == 0) return std::nullopt;
    }
    if (inward < 1.0) return kSteel(frame == 2 ? 3 : 1);
    if (share < 0.36) return kSteel(5);
    return kSteel(5.6 - 5.6 * (share - 0.30) / 0.62);
  };
}

Shape Thrust() {
  return [](double x, double y) -> std::optional<Colour> {
    // A lance of light drives to the left and bursts in gold where its point strikes.
    const double dx = x + 4.5;
    const double upright =
        1 - std::pow(std::abs(dx) / 7.4, 0.6) - std::pow(std::abs(y) / 12.2, 0.6);
    const double slanted_x = std::abs(dx + y) * 0.7071;
    const double slanted_y = std::abs(dx - y) * 0.7071;
    const double rays = 1 - std::pow(slanted_x / 10, 0.58) - std::pow(slanted_y / 10, 0.58);
    const double heart = 1 - std::hypot(dx, y) / 5.4;
    const double burst = std::max({1.35 * upright, 1.35 * rays, heart});
    if (burst > 0) return kSunlight(burst < 0.1 ? 0 : 0.9 + 6.4 * burst);
    const double left = (11.4 - x) / 22.8;  // 0 at the lance's end, 1 at its point
    if (left < 0 || left > 1) return std::nullopt;
    const double width = left < 0.86 ? 0.9 + 4.2 * left : 4.5 * std::sqrt((1 - left) / 0.14);
    const double lance = 1 - std::abs(y) / width;
    if (lance > 0) return kSteel(lance < 0.25 ? 0 : lance < 0.45 ? 1.5 : 2 + 4.6 * lance);
    // Strokes of torn air beside it.
    const int line = static_cast<int>(std::abs(y) - 4.5);
    const double begins = y < 0 ? 1.5 : -0.5;
    if (line == 1 && x > begins && x < begins + 8) return kSteel(x < begins + 5 ? 4 : 3);
    if (line == 4 && x > begins + 1 && x < begins + 5) return kSteel(3);
    return std::nullopt;
  };
}

}  // namespace orvane::paint::effects
