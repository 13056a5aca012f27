#include "content/pictures/scenes/sky.h"

#include "content/pictures/scenes/noise.h"

namespace orvane::paint::scene {
namespace {

// Two scales laid together: banks, and the billows that they are made of.
float Density(float x, float y, int seed) {
  const float bank = Fbm(x * 0.55F, y * 0.55F, 3, seed);
  return 0.45F * bank + 0.55F * Fbm(x, y, 6, seed + 1);
}

}  // namespace

Colour GradientSky(Vec direction, Colour high, Colour low) {
  return Mix(low, high, std::pow(Clamp(direction.Y * 3.2F), 0.75F));
}

Colour Clouds(Colour sky, Vec direction, const CloudLayer& layer, Vec light) {
  const float lift = 1 / (std::max(direction.Y, 0.0F) + 0.09F);
  const float x = direction.X * lift * layer.Fineness + 3.7F;
  const float y = direction.Z * lift * layer.Fineness;
  const float here = Density(x, y, layer.Seed);
  const float there = Density(x + light.X * 0.14F, y - 0.12F, layer.Seed);
  const float cover = SmoothStep(layer.Free, layer.Free + layer.Border, here);
  const float bright = Clamp(0.6F + (here - there) * 5.5F);
  return Mix(sky, Mix(layer.Shade, layer.Lit, bright),
             cover * SmoothStep(-0.02F, 0.10F, direction.Y) * 0.94F);
}

}  // namespace orvane::paint::scene
