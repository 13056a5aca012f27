// Repeatable chance for the painters of tiles and effects.
#pragma once

namespace orvane::paint::tiles {

// An even value in [0, 1) that depends on nothing but the three numbers.
double Hash(int x, int y, int seed);

// Smooth value noise in [0, 1). The lattice repeats after `period` cells in both directions;
// a period below 1 means that it never repeats.
double Noise(double x, double y, int period, int seed);

// The nearest sites of a jittered lattice: what cracks, cobbles and cliff facets are made of.
struct Facet {
  double Edge = 0;  // 0 on the border to the next facet, growing inward
  double Dx = 0;    // place within the facet, from its site, in lattice cells
  double Dy = 0;
  double Chance = 0;  // one number per facet, [0, 1)
};

// The facet at (x, y) in lattice cells; the lattice repeats after `period_x` and `period_y` cells.
Facet FacetAt(double x, double y, int period_x, int period_y, int seed);

}  // namespace orvane::paint::tiles
