// The building blocks of a figure: rounded solids that know the distance to any point.
#pragma once

#include <array>
#include <vector>

#include "content/pictures/figures/vec.h"

namespace orvane::paint {

enum class Shape { Capsule, Ellipsoid, Panel };

// What a texture may want to know of the place where a ray met a part.
struct Spot {
  float Along = 0;  // units from the start of the chain; on panels 0 to 1 across, finger to finger
  float Out = 0;    // on panels 0 at the root, 1 at the free edge
  Vec Side;         // the part's own front: the belly of a body
  Vec Run;          // along the chain
};

struct Part {
  Shape Kind = Shape::Capsule;
  Vec A;                    // capsule: start; ellipsoid: middle; panel: root
  Vec B;                    // capsule: end; panel: first tip
  Vec C;                    // panel: second tip
  float RadiusA = 0;        // capsule: at the start; panel: half thickness
  float RadiusB = 0;        // capsule: at the end; panel: how deep the free edge is scalloped
  float Billow = 0;         // panel: how far it bulges out of its plane
  std::array<Vec, 3> Axis;  // ellipsoid: unit axes
  Vec Radii;                // ellipsoid: half lengths on the axes
  float AlongA = 0;         // Spot::Along at both ends of a capsule
  float AlongB = 0;
  Vec Side;    // Spot::Side
  Vec Middle;  // ball that holds the whole part
  float Reach = 0;
};

// Signed distance from the point to the part's surface; `spot`, when given, is filled.
float Distance(const Part& part, Vec point, Spot* spot = nullptr);

// How far the part reaches along a unit direction, measured from the origin.
float Extent(const Part& part, Vec direction);

// Fills Middle and Reach from the rest.
void Bound(Part& part);

}  // namespace orvane::paint
