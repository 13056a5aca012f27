// Pictures enlarged by a factor that is no whole number, with pixels that stay sharp and equally
// large.
#pragma once

#include <cstdint>
#include <vector>

#include "src/ui/surface.h"

namespace orvane {

// The part `part`, in pixels of the enlarged picture, of a picture of width x height pixels
// 0xFFRRGGBB, row by row. Each pixel of the result is the mean of what it covers, so that parts fit
// together without a seam. `scale` is at least 1; beyond the picture its last pixels go on.
std::vector<uint32_t> Enlarge(const uint32_t* pixels, int width, int height, double scale,
                              const Rect& part);

}  // namespace orvane
