// How loud a sound is to the ear.
#pragma once

#include <vector>

namespace orvane::effects {

// The level in dB of the loudest stretch of `seconds` (or of the whole, where it is shorter) in a
// mono sound at 44100 Hz, weighted as the ear hears (ITU-R BS.1770). -100 for silence.
double PeakLoudness(const std::vector<float>& samples, double seconds);

// The loudness in LUFS of a whole stereo piece with the gates of BS.1770; both channels are of one
// length. -100 for silence.
double WholeLoudness(const std::vector<float>& left, const std::vector<float>& right);

}  // namespace orvane::effects
