// The first half of the rendering: light and material at every sample of the cell.
#pragma once

#include "content/pictures/figures/render.h"

namespace orvane::paint {

// One pixel after its samples are gathered.
struct TracedPixel {
  int Material = -1;  // most of the pixel; -1 where the figure does not cover half of it
  float Light = 0;    // mean of that material's samples
  float Depth = 0;    // distance from the viewer, of the nearest sample
};

// Traces all pixels of the view, a row after the other.
std::vector<TracedPixel> Trace(const Model& model, const std::vector<Material>& materials,
                               const View& view, const Camera& eye);

}  // namespace orvane::paint
