// Random numbers.
#pragma once

#include "src/base/integer.h"
#include "src/platform/services.h"

namespace orvane {

// A draw in [0, 1): single precision, widened before anything is done with it.
inline double Rnd(Chance& luck) {
  return static_cast<double>(luck.Draw());
}

// One draw as one of `count` whole numbers from `first` on.
inline Int16 Roll(Chance& luck, int count, int first = 0) {
  return RoundToInt16(Int(Rnd(luck) * count + first));
}

}  // namespace orvane
