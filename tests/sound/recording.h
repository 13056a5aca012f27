// A recording of what the game played.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace orvane::test {

// Both sides; full scale is 1.
struct Recording {
  int Rate = 44100;  // frames a second
  std::vector<float> Left;
  std::vector<float> Right;

  double Seconds() const { return static_cast<double>(Left.size()) / Rate; }
  // Adds frames, left and right in turn.
  void Add(const std::vector<float>& frames);
  // The part from one time to another, in seconds, as far as there is one.
  Recording Part(double from, double to) const;
};

// Reads a WAV file of one or two channels and 16 bits; anything else gives nothing. Of one channel
// both sides are the same.
std::optional<Recording> ReadRecording(const std::string& path);

}  // namespace orvane::test
