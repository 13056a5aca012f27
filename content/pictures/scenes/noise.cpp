#include "content/pictures/scenes/noise.h"

#include <algorithm>
#include <cmath>

#include "content/pictures/shared/hash.h"
#include "content/pictures/shared/vec.h"

namespace orvane::paint::scene {
namespace {

// Turning each octave by some 37 degrees hides the lattice.
struct Turned {
  float X;
  float Y;
};

Turned NextOctave(float x, float y) {
  return {x * 1.6F - y * 1.2F + 3.1F, x * 1.2F + y * 1.6F + 1.7F};
}

}  // namespace

float Hash(int x, int y, int seed) {
  return static_cast<float>(HashOf(x, y, seed) >> 8) / 16777216.0F;
}

float Noise(float x, float y, int seed) {
  const float floor_x = std::floor(x);
  const float floor_y = std::floor(y);
  const int cell_x = static_cast<int>(floor_x);
  const int cell_y = static_cast<int>(floor_y);
  const float in_x = SmoothStep(0, 1, x - floor_x);
  const float in_y = SmoothStep(0, 1, y - floor_y);
  const float upper = Mix(Hash(cell_x, cell_y, seed), Hash(cell_x + 1, cell_y, seed), in_x);
  const float lower = Mix(Hash(cell_x, cell_y + 1, seed), Hash(cell_x + 1, cell_y + 1, seed), in_x);
  return Mix(upper, lower, in_y);
}

float Fbm(float x, float y, int octaves, int seed) {
  float sum = 0;
  float strength = 0.5F;
  for (int octave = 0; octave < octaves; ++octave) {
    sum += strength * Noise(x, y, seed);
    const Turned next = NextOctave(x, y);
    x = next.X;
    y = next.Y;
    strength *= 0.5F;
  }
  // The octaves left out would have added their mean.
  return sum + strength;
}

float Ridges(float x, float y, int octaves, int seed) {
  float sum = 0;
  float strength = 0.5F;
  float above = 1;
  for (int octave = 0; octave < octaves; ++octave) {
    const float crest = 1 - std::fabs(2 * Noise(x, y, seed) - 1);
    sum += strength * crest * crest * above;
    above = crest * crest;
    const Turned next = NextOctave(x, y);
    x = next.X;
    y = next.Y;
    strength *= 0.5F;
  }
  return sum;
}

float CellBorder(float x, float y, int seed) {
  const int cell_x = static_cast<int>(std::floor(x));
  const int cell_y = static_cast<int>(std::floor(y));
  float first = 9;
  float second = 9;
  for (int j = cell_y - 1; j <= cell_y + 1; ++j) {
    for (int i = cell_x - 1; i <= cell_x + 1; ++i) {
      const float across = static_cast<float>(i) + Hash(i, j, seed) - x;
      const float down = static_cast<float>(j) + Hash(i, j, seed + 1) - y;
      const float distance = std::sqrt(across * across + down * down);
      second = std::min(second, std::max(first, distance));
      first = std::min(first, distance);
    }
  }
  return second - first;
}

}  // namespace orvane::paint::scene
