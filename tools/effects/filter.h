// Second-order filters, one sample at a time.
#pragma once

#include "tools/effects/recipe.h"

namespace orvane::effects {

// A filter of two poles whose frequency may be set anew at any sample.
class Biquad {
 public:
  // Sets the kind, the frequency in Hz (held inside 10 Hz to 0.45 of the rate) and the resonance.
  void Set(FilterKind kind, double frequency, double q);

  // Sets the coefficients themselves, those of the feedback with the sign of the difference
  // equation's left side.
  void Set(double b0, double b1, double b2, double a1, double a2);

  double Next(double sample) {
    const double out = b0_ * sample + z1_;
    z1_ = b1_ * sample - a1_ * out + z2_;
    z2_ = b2_ * sample - a2_ * out;
    return out;
  }

 private:
  double b0_ = 1, b1_ = 0, b2_ = 0, a1_ = 0, a2_ = 0;
  double z1_ = 0, z2_ = 0;
};

}  // namespace orvane::effects
