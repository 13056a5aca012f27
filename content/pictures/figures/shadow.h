// The shadow that a figure throws on the ground: a mask knows no half tones, so it is a pattern of
// single dark pixels, close in the middle and open at the rim.
#pragma once

#include <cstdint>

#include "content/pictures/figures/render.h"

namespace orvane::paint {

// The colour of all shadows. No figure uses it, so that a figure can be told from its shadow.
constexpr uint32_t kShadowColour = 0x2A2840;

// How many pixels a shadow reaches below the feet.
constexpr int kShadowRoom = 2;

// An ellipse on the ground, in pixels of the cell.
struct GroundShadow {
  float X = 0;  // middle
  float Y = 0;
  float HalfWidth = 0;
  float HalfHeight = 0;
  float Full = 0;  // share of it, from the middle on, that has no gaps
};

// The shadow under a figure that stands: as wide as its lowest part, `wider` times, and a little to
// the right, away from the light.
GroundShadow ShadowUnder(const Sprite& sprite, float wider = 1.25F);

// The shadow of a figure that floats: on a ground line `above` pixels over the cell's lower edge,
// as wide as `share` of the figure.
GroundShadow ShadowBelow(const Sprite& sprite, float share = 0.55F, int above = 1);

// Lays a shadow behind the figure; it keeps off the cell's outermost pixels.
void CastShadow(Sprite& sprite, const GroundShadow& shadow);

}  // namespace orvane::paint
