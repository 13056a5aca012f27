// Makes the samples of a recipe.
#pragma once

#include <vector>

#include "tools/effects/recipe.h"

namespace orvane::effects {

// Loudness that every effect is brought to, in dB of its loudest 0.2 s, and the highest sample
// that any may hold: three effects at once stay below full scale.
constexpr double kTargetLoudness = -17;
constexpr double kCeiling = 0.40;

// Mixes the layers with echo and room, without levelling; noise is the same on every run.
std::vector<float> Mix(const Recipe& recipe);

// Brings a mix to the common loudness under the ceiling (peaks are bent, not cut), and eases the
// first 2 ms in and the last 20 ms out, so that both ends are at rest.
std::vector<float> Finish(const std::vector<float>& mix);

}  // namespace orvane::effects
