// How sight and light travel through the last dragon's hall.
#pragma once

#include "content/pictures/scenes/hall.h"

namespace orvane::paint::scene {

// Where a line of sight ends.
struct Hit {
  Vec Place;
  float Distance = 0;
  Stuff stuff = Stuff::Disc;
};

// Follows a line of sight; `direction` has length 1, `steps` bounds the work.
Hit March(Vec from, Vec direction, int steps);

// The surface's direction at a place on it; `gap` is how finely it is felt out.
Vec NormalAt(Vec p, float gap);

// How much light arrives from `towards`, 0 to 1. Only what stands near throws a shadow: the light
// is the vault's own shimmer.
float Shadow(Vec from, Vec towards);

// How open the place lies: 0 in a deep corner, 1 on a plain.
float Openness(Vec p, Vec normal);

// The light of a point at `source`: how squarely it falls on the surface, weaker with the square of
// the way.
float Glow(Vec p, Vec normal, Vec source, float strength);

}  // namespace orvane::paint::scene
