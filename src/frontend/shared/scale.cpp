#include "src/frontend/shared/scale.h"

#include <algorithm>

namespace orvane {
namespace {

constexpr double kLargestPart = 0.9;

constexpr double kTooSmall = 0.6;  // of what would fit

bool Fits(double scale, const Extent& available, const std::vector<Extent>& windows) {
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

Span FirstSpan(const std::vector<Extent>& windows) {
  if (windows.empty()) return {};
  return {{windows.front().Width, windows.front().Height + kMenuHeight}, kTitleHeight};
}

int ChooseScale(const Extent& available, const std::vector<Extent>& windows) {
  int scale = windows.empty() ? 1 : kLargestScale;
  while (scale > 1 && !Fits(scale, available, windows)) --scale;
  return scale;
}

double ChooseStartScale(const Extent& available, const std::vector<Extent>& windows) {
  constexpr double half_step = 0.5;
  const int whole = ChooseScale(available, windows);
  if (windows.empty() || whole >= kTooSmall * FittingScale(available, {FirstSpan(windows)})) {
    return whole;
  }
  return Fits(whole + half_step, available, windows) ? whole + half_step : whole;
}

double FittingScale(const Extent& display, const std::vector<Span>& windows) {
  double scale = 2.0 * kLargestScale;
  for (const Span& window : windows) {
    const Extent bare = {display.Width, display.Height - window.Title};
    const Extent room = window.Given.value_or(bare);
    scale = std::min({scale, room.Width / window.Inside.Width, room.Height / window.Inside.Height});
  }
  return std::max(1.0, scale);
}

}  // namespace orvane
