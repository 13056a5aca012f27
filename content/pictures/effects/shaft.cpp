#include "content/pictures/effects/shaft.h"

#include <algorithm>
#include <cmath>

namespace orvane::paint::effects {
namespace {

std::optional<double> ToneIn(const Shaft& shaft, double x, double y, double shoulder) {
  const double up_x = std::sin(shaft.Turn);
  const double up_y = -std::cos(shaft.Turn);
  const double along = ((x - shaft.RootX) * up_x + (y - shaft.RootY) * up_y) / shaft.Length;
  const double across = -(x - shaft.RootX) * up_y + (y - shaft.RootY) * up_x;
  if (along < 0 || along > 1) return std::nullopt;
  const double width = shaft.Width * (along < shoulder ? 0.72 + 0.28 * along / shoulder
                                                       : (1 - along) / (1 - shoulder));
  const double side = across / std::max(0.3, width);
  if (std::abs(side) > 1) return std::nullopt;
  const double rim = (1 - std::abs(side)) * width;
  double tone = side < -0.3 ? 3.4 : side < 0.25 ? 4.4 : 1.8;
  if (along > shoulder) tone += side < 0.1 ? 1 : 0.6;
  if (rim < 0.9) tone = side > 0 ? 0.4 : 2.2;
  if (std::abs(side + 0.28) < 0.14 && rim > 0.9) tone = 5.2;
  return tone;
}

}  // namespace

Shape Cluster(const std::vector<Shaft>& shafts, double shoulder, const SixTones& ramp) {
  return [shafts, shoulder, ramp](double x, double y) -> std::optional<Colour> {
    std::optional<Colour> colour;
    for (const Shaft& shaft : shafts) {
      const std::optional<double> tone = ToneIn(shaft, x, y, shoulder);
      if (tone) colour = ramp(*tone);
    }
    return colour;
  };
}

}  // namespace orvane::paint::effects
