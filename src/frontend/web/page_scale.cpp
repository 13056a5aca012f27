#include "src/frontend/web/page_scale.h"

#include <algorithm>
#include <cmath>

namespace orvane {
namespace {

constexpr double kHalfStep = 0.5;
// A handheld's half step may leave this much free; a telephone is small enough as it is.
constexpr double kWorthAStep = 0.92;
// The least that a menu bar has where it is touched, in the page's pixels.
constexpr double kFingerHeight = 24;

// The largest factor with which each of them fits, however small.
double Fitting(const Extent& room, const std::vector<Span>& windows) {
  double scale = 2.0 * kLargestScale;
  for (const Span& window : windows) {
    scale = std::min({scale, room.Width / window.Inside.Width,
                      (room.Height - window.Title) / window.Inside.Height});
  }
  return scale;
}

double StepsWithin(double scale) {
  return std::floor(scale / kHalfStep) * kHalfStep;
}

double ScaleWithin(const PageFacts& page, const std::vector<Extent>& windows,
                   const std::vector<Span>& shown) {
  constexpr double least = 0.25;
  const double fitting = std::max(least, Fitting(page.Room, shown));
  if (page.FullScreen) return fitting;
  if (page.IsHandheld || fitting < 1) {
    const double steps = StepsWithin(fitting);
    return steps >= kWorthAStep * fitting ? steps : fitting;
  }
  const double wished = ChooseStartScale(page.Room, windows) * page.Zoom;
  return std::min(std::max(1.0, std::round(wished / kHalfStep) * kHalfStep), fitting);
}

}  // namespace

double PageScale(const PageFacts& page, const std::vector<Extent>& windows,
                 const std::vector<Span>& shown) {
  const double scale = ScaleWithin(page, windows, shown);
  const double lack = page.IsHandheld ? kFingerHeight * page.Ratio - kMenuHeight * scale : 0;
  if (lack <= 0) return scale;
  constexpr double growth = 1.1;  // menus grow as the rest shrinks
  PageFacts rest = page;
  rest.Room.Height -= growth * lack;
  return ScaleWithin(rest, windows, shown);
}

}  // namespace orvane
