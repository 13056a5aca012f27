// Small holes in a figure, through which the ground would glitter.
#pragma once

#include <cstddef>
#include <vector>

namespace orvane::paint {

// A pixel of a hole, and a pixel of the figure beside it.
struct HolePixel {
  size_t At;
  size_t Beside;
};

// The empty pixels of a cell that `solid` shuts in, in holes of at most `largest` pixels. Empty
// pixels that only touch at a corner are not one hole.
std::vector<HolePixel> SmallHoles(const std::vector<bool>& solid, int width, size_t largest);

}  // namespace orvane::paint
