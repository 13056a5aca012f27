// Keeps the mix below full scale however many sounds meet in it.
#pragma once

#include <array>
#include <cstddef>

namespace orvane {

// The mixer works in blocks of that many frames, 1.5 ms: the grain at which notes and commands
// take effect.
constexpr int kBlockFrames = 64;
// Left and right in turn, full scale at 1.
using Block = std::array<float, std::size_t{2} * kBlockFrames>;

// Looks one block ahead and turns the volume down before a peak arrives, then slowly up again:
// peaks are rounded off without the crackle of cutting them. Sound that stays below the ceiling
// passes unchanged, one block late.
class Limiter {
 public:
  static constexpr float Ceiling = 0.95F;

  // Takes the next block in and leaves the one before in its place.
  void Process(Block& block);

 private:
  Block held_{};
  float held_need_ = 1;  // the gain that the held block can bear
  float gain_ = 1;       // where the held block begins
};

}  // namespace orvane
