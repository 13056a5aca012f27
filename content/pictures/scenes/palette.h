// Palettes of limited size for painted pictures.
#pragma once

#include <cstdint>
#include <vector>

#include "tools/paint/recipe.h"

namespace orvane::paint::scene {

// At most `colours` colours, from 1, that serve the image best: boxes split at their widest side,
// then settled by a few rounds of nearest means.
std::vector<uint32_t> MakePalette(const Image& image, int colours);

// The palette's colour nearest to the pixel; the palette must not be empty.
uint32_t Nearest(const std::vector<uint32_t>& palette, uint32_t pixel);

}  // namespace orvane::paint::scene
