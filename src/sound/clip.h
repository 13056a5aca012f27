// An effect: a short recording, in memory and at the mixer's rate.
#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <vector>

namespace orvane {

struct Clip {
  int Channels = 1;                   // 1 or 2
  std::vector<std::int16_t> Samples;  // of two channels left and right in turn

  size_t Frames() const { return Samples.size() / static_cast<size_t>(Channels); }
};

// Reads a WAV file and brings it to `rate` frames a second. What is no sound gives nothing.
std::shared_ptr<const Clip> ReadClip(std::span<const std::uint8_t> file, int rate);

}  // namespace orvane
