#include "src/frontend/shared/text_fit.h"

#include <algorithm>
#include <cmath>

namespace orvane {
namespace {

constexpr double kNarrowest = 0.75;

}  // namespace

int OwnLineHeight(int size) {
  constexpr int gap = 1;
  return size + gap;
}

double ExtraRise(int size, double ascent) {
  constexpr double own_ascent = 0.88;  // of the letters' size
  return std::max(0.0, ascent - std::ceil(own_ascent * size));
}

bool IsOneLine(std::string_view text, double height, int size) {
  return height < 2 * OwnLineHeight(size) && text.find('\n') == std::string_view::npos;
}

double SqueezeInto(double width, double room) {
  return width > room ? std::max(kNarrowest, room / width) : 1.0;
}

Fit FitLines(const CountLines& count, double width, double height, double comfortable, double own) {
  constexpr double step = 0.05;
  Fit fit = {1, std::max(own, comfortable)};
  if (count(width) * fit.Pitch <= height) return fit;
  fit.Pitch = own;
  while (count(width / fit.Squeeze) * own > height && fit.Squeeze > kNarrowest) {
    fit.Squeeze = std::max(kNarrowest, fit.Squeeze - step);
  }
  return fit;
}

}  // namespace orvane
