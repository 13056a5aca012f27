#include "src/frontend/shared/zoom.h"

#include <algorithm>
#include <cmath>

#include "src/ui/screen.h"
#include "src/ui/stage.h"

namespace orvane {
namespace {

constexpr double kHalfStep = 0.5;

}  // namespace

std::vector<Extent> InsidesOf(const Stage& stage) {
  std::vector<Extent> insides;
  for (const Screen* screen : stage.Screens()) {
    insides.push_back({double(screen->Width), double(screen->Height)});
  }
  return insides;
}

Zoom::Zoom(const ScreenFacts& screen, std::optional<double> start,
           const std::vector<Extent>& windows)
    : screen_(screen),
      best_(ChooseStartScale(screen.Available, windows)),
      windowed_(start.value_or(best_)),
      least_(windowed_),
      largest_(FittingScale(screen.Available, {FirstSpan(windows)})) {}

void Zoom::Enlarge() {
  const double next = std::floor(windowed_ / kHalfStep + 1) * kHalfStep;
  if (next <= largest_) windowed_ = next;
}

void Zoom::Reduce() {
  const double next = std::ceil(windowed_ / kHalfStep - 1) * kHalfStep;
  if (next >= 1) windowed_ = next;
}

double Zoom::ScaleFor(const std::vector<Span>& windows) const {
  if (full_screen_) return FittingScale(screen_.Whole, windows);
  const double fitting = FittingScale(screen_.Available, windows);
  const bool is_given = std::any_of(windows.begin(), windows.end(),
                                    [](const Span& window) { return window.Given.has_value(); });
  if (is_given) return fitting;
  return std::min(windowed_, std::max(least_, fitting));
}

}  // namespace orvane
