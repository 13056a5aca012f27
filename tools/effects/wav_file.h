// 16-bit PCM files.
#pragma once

#include <string>
#include <vector>

namespace orvane::effects {

// What a WAV file holds; samples of several channels follow one another.
struct Wav {
  int Channels = 1;
  int Rate = 44100;
  int Bits = 16;
  std::vector<float> Samples;  // -1 to 1
};

// The file's bytes; samples beyond -1 and 1 are cut.
std::string WriteWav(const Wav& wav);

// Reads a file of 16-bit PCM; throws std::runtime_error for anything else.
Wav ReadWav(const std::string& bytes);

}  // namespace orvane::effects
