// What an ear would find wrong with a recording.
#pragma once

#include <vector>

#include "tests/sound/recording.h"

namespace orvane::test {

// A stretch in which nothing is heard.
struct Gap {
  double From = 0;  // in seconds
  double Seconds = 0;
};

// A leap that stands by itself: much sharper than the sound just before and just after it.
struct Click {
  double At = 0;         // in seconds
  double Leap = 0;       // how far it leaps, in full scale
  double Sharpness = 0;  // how many times sharper than its surroundings
};

// The stretches of at least `seconds` in which both sides stay below `level`.
std::vector<Gap> FindGaps(const Recording& recording, double seconds, double level = 0.001);

// The clicks of at least `leap`.
std::vector<Click> FindClicks(const Recording& recording, double leap = 0.02,
                              double sharpness = 12);

// The times at which sound sets in after at least 50 ms below `level`.
std::vector<double> FindOnsets(const Recording& recording, double level = 0.01);

double PeakOf(const Recording& recording);
// The root of the mean square of both sides.
double LevelOf(const Recording& recording);

}  // namespace orvane::test
