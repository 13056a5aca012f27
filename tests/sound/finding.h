// Finds a known sound in a recording in which others sound with it.
#pragma once

#include <span>
#include <vector>

namespace orvane::test {

struct Finding {
  double At = 0;     // in seconds: where the sound begins
  double Gain = 0;   // as loud as it is itself: 1; not there: near 0
  double Doubt = 0;  // the gain of the best place that is more than 2 ms away
};

// Looks for `sound` from `from` on, as long as it begins before `to`, both in seconds. What sounded
// in the third of a second before `quiet` tells what does not belong to it: both are whitened by
// that, so that the sound's own edges count and not what it shares with the music.
Finding Find(std::span<const float> recording, int rate, std::span<const float> sound, double from,
             double to, double quiet);

}  // namespace orvane::test
