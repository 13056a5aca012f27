// The shape of nine-part patches: one ground set into another, with four inner corners.
#pragma once

#include <array>

#include "content/pictures/tiles/draw.h"

namespace orvane::paint::tiles {

// Where a pixel lies in a patch.
struct PatchSpot {
  int X = 0;  // in the picture that is painted; its multiples of 16 are cell borders
  int Y = 0;
  double Depth = 0;    // pixels inside the shore; negative outside
  double FacingX = 0;  // unit vector from the inside toward the shore
  double FacingY = 0;
};

// The codes and the shape of a patch.
struct PatchPlan {
  int First = 0;               // code of the north-west corner; rows are 30 codes apart
  std::array<int, 4> Inner{};  // codes of the inner corners NW, NE, SW, SE; 0 for none
  double Inset = 4;            // pixels from the cell's border to the shore
  double Radius = 6;           // of the outer corners
  double Waver = 1.4;          // how far the shore strays
  int Seed = 0;
};

// Paints all parts of a patch with `colour_at(const PatchSpot&)`.
void PaintPatch(Sheet& sheet, const PatchPlan& plan, Colour (*colour_at)(const PatchSpot&));

}  // namespace orvane::paint::tiles
