#include "tools/effects/filter.h"

#include <algorithm>
#include <cmath>

namespace orvane::effects {

void Biquad::Set(double b0, double b1, double b2, double a1, double a2) {
  b0_ = b0;
  b1_ = b1;
  b2_ = b2;
  a1_ = a1;
  a2_ = a2;
}

void Biquad::Set(FilterKind kind, double frequency, double q) {
  const double w = 2 * 3.14159265358979 * std::clamp(frequency, 10.0, 0.45 * kRate) / kRate;
  const double alpha = std::sin(w) / (2 * std::max(q, 0.1));
  const double cosine = std::cos(w);
  const double a0 = 1 + alpha;
  double b0 = 0;
  double b1 = 0;
  double b2 = 0;
  switch (kind) {
    case FilterKind::Lowpass:
      b1 = 1 - cosine;
      b0 = b2 = b1 / 2;
      break;
    case FilterKind::Highpass:
      b1 = -(1 + cosine);
      b0 = b2 = -b1 / 2;
      break;
    case FilterKind::Bandpass:
      b0 = alpha;
      b2 = -alpha;
      break;
  }
  Set(b0 / a0, b1 / a0, b2 / a0, -2 * cosine / a0, (1 - alpha) / a0);
}

}  // namespace orvane::effects
