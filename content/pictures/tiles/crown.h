// Leafy crowns: heaps of lit discs.
#pragma once

#include <vector>

#include "content/pictures/tiles/draw.h"

namespace orvane::paint::tiles {

struct LeafDisc {
  double X = 0;  // from the crown's middle
  double Y = 0;
  double Radius = 0;
};

// Where a crown stands and how large it is as a whole.
struct Crown {
  double X = 0;
  double Y = 0;
  double Wide = 0;  // half
  double High = 0;  // half
  int Seed = 0;
  double Lift = 0;  // added to every tone
};

// The usual heap of discs for a crown of that size.
std::vector<LeafDisc> Heap(const Crown& crown);

// Paints the crown with an outline in the darkest tone.
void PaintCrown(Image& image, const Crown& crown, const std::vector<LeafDisc>& discs,
                const Ramp<7>& ramp);

}  // namespace orvane::paint::tiles
