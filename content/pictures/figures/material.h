// What the parts of a figure are made of: a ramp of colours and how light plays on it.
#pragma once

#include <cstdint>
#include <functional>
#include <vector>

#include "content/pictures/figures/part.h"

namespace orvane::paint {

// A lit point of the surface, as a texture sees it.
struct Touch {
  Vec At;            // in the model
  Vec Normal;        // away from the surface, toward the viewer
  Spot Place;        // where on its part
  float Blend = 0;   // the softness of its group: tells a torso from its details
  float Facing = 0;  // of the key light: -1 to 1
  float Front = 0;   // toward the viewer: 0 at the outline, 1 face on
  float Shadow = 1;  // 0 in full shadow
  float Open = 1;    // 0 in a deep fold
  float Rim = 0;     // light from behind
  float Shine = 0;   // mirror of the key light
  int Material = 0;  // a texture may change it, to draw a belly into a skin
};

// Gives the final light, about 0 to 1, from the plain one.
using Texture = std::function<float(Touch& touch, float light)>;

struct Material {
  std::vector<uint32_t> Ramp;  // dark to light
  float Gloss = 0;             // armour 0.75, slime 0.45, skin 0.14
  float Rim = 0.35F;
  float Glow = 0;  // light of its own
  Texture Pattern = nullptr;
};

// The plain light of a touch on a material.
float PlainLight(const Touch& touch, const Material& material);

// Rows of scales of the given size. On the front of groups at least `belly_blend` soft the material
// becomes `belly` (none when below 0), with plates across it every `plate` units.
Texture Scales(float size, int belly = -1, float plate = 8, float belly_blend = 7.5F);
// A wing's skin: lit from both sides, folded between the fingers, darker toward its free edge.
// `floor` is the light that it never loses.
Texture Membrane(float folds = 3, float floor = 0.14F);
// Growth rings along a horn or a tentacle, every `step` units, `depth` 0 to 1 deep.
Texture Rings(float step, float depth);
// Uneven dark and light patches of the given size.
Texture Mottle(float size, float depth);
// A body of fire: bright in its middle, dark at its outline, cooler toward its tip at `length`.
Texture Flames(float length);
// Strands along the y axis and down the limbs: fur, hair, straw.
Texture Strands(float size, float depth);

}  // namespace orvane::paint
