// Faces as tables of flat shapes, drawn in units of the finished pixels.
#pragma once

#include <cstdint>
#include <span>

#include "tools/paint/recipe.h"

namespace orvane::paint::panel {

constexpr uint32_t kNone = 0xFFFFFFFF;

// One shape of a face: its path, its fill and border colour (or none), how wide the border is, how
// much it covers, and the shape that it is cut to (or null).
struct Mark {
  const char* Path;
  uint32_t Fill = kNone;
  uint32_t line = kNone;
  double Width = 0;
  double Opacity = 1;
  const char* Within = nullptr;
};

// The marks from the first to the last over each other, as a sheet of 48 by 48 in few colours.
Image PaintPortrait(std::span<const Mark> marks);

}  // namespace orvane::paint::panel
