#include "src/frontend/shared/scale.h"

#include <algorithm>

namespace orvane {
namespace {

constexpr double kLargestPart = 0.9;

bool Fits(int scale, const Extent& available, const std::vector<Extent>& windows) {
  const Extent& first = windows.front();
  if (first.Width * scale > available.Width * kLargestPart) return false;
  if (first.Height * scale > available.Height * kLargestPart) return false;
  return std::all_of(windows.begin(), windows.end(), [&](const Extent& window) {
    const double menu = &window == &first ? kMenuHeight : 0;
    return window.Width * scale <= available.Width &&
           (window.Height + menu) * scale + kTitleHeight <= available.Height;
  });
}

}  // namespace

int ChooseScale(const Extent& available, const std::vector<Extent>& windows) {
  int scale = windows.empty() ? 1 : kLargestScale;
  while (scale > 1 && !Fits(scale, available, windows)) --scale;
  return scale;
}

double FittingScale(const Extent& display, const std::vector<Span>& windows) {
  double scale = 2.0 * kLargestScale;
  for (const Span& window : windows) {
    scale = std::min({scale, display.Width / window.Inside.Width,
                      (display.Height - window.Title) / window.Inside.Height});
  }
  return std::max(1.0, scale);
}

}  // namespace orvane
