// 16-bit PCM files.
#pragma once

#include <string>
#include <vector>

namespace orvane::effects {

// What a WAV file holds; samples of several channels follow one another.
struct Wav {
  int channels = 1;
  int rate = 44100;
  int bits = 16;
  std::vector<float> samples;  // -1 to 1
};

// The file's bytes; samples beyond -1 and 1 are cut.
std::string WriteWav(const Wav& wav);

// Reads a file of 16-bit PCM; throws std::runtime_error for anything else.
Wav ReadWav(const std::string& bytes);

}  // namespace orvane::effects
