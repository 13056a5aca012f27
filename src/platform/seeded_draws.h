// The generator that all chance comes from, unless a script dictates it: the same seed gives the
// same draws on every system.
#pragma once

#include <cstdint>
#include <random>
#include <vector>

namespace orvane {

class SeededDraws {
 public:
  using Words = std::vector<uint32_t>;

  // One word seeds the generator by itself, several are mixed; with none it is as it comes into
  // being.
  void Seed(Words words);
  // Uniform in [0, 1), with the 24 bits that a single-precision number holds exactly.
  float Draw();

  // What the generator was last seeded with, and how often it has been, its coming into being
  // included.
  const Words& LastSeed() const { return words_; }
  uint64_t Seedings() const { return seedings_; }
  // How often it has been drawn from since.
  uint64_t Drawn() const { return drawn_; }

 private:
  std::mt19937 generator_;
  Words words_;
  uint64_t seedings_ = 1;
  uint64_t drawn_ = 0;
};

}  // namespace orvane
