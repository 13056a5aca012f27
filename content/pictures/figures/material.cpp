#include "content/pictures/figures/material.h"

namespace orvane::paint {
namespace {

constexpr float kPi = 3.14159265F;

// Light over a plate of the belly: it swells from its upper edge and ends in a dark seam.
float PlateLight(float along, float plate, float front) {
  const float f = Fraction(along / plate);
  const float light = (0.78F + 0.28F * SmoothStep(0, 0.5F, f)) * (f > 0.84F ? 0.55F : 1.0F);
  return light * (0.62F + 0.38F * SmoothStep(0.30F, 0.46F, front));
}

}  // namespace

float PlainLight(const Touch& touch, const Material& material) {
  const float wrapped = Clamp(touch.Facing * 0.75F + 0.25F) * Mix(0.35F, 1, touch.Shadow);
  return 0.10F + 0.16F * touch.Open * (0.5F + 0.5F * touch.Normal.Y) +
         0.72F * wrapped * Mix(0.52F, 1, touch.Open) + material.Rim * touch.Rim +
         material.Gloss * touch.Shine + material.Glow;
}

Texture Scales(float size, int belly, float plate, float belly_blend) {
  return [=](Touch& touch, float light) {
    const bool body = touch.Blend >= belly_blend;
    const float front = Dot(touch.Normal, touch.Place.Side);
    if (body && belly >= 0 && front > 0.32F) {
      touch.Material = belly;
      return light * PlateLight(touch.Place.Along, plate, front);
    }
    float row = touch.At.Y / (size * 0.85F) + touch.At.Z * 0.1F;
    float column = (touch.At.X + touch.At.Z) / size;
    if (body) {
      row = touch.Place.Along / size;
      const Vec across = Cross(touch.Place.Run, touch.Place.Side);
      column = std::atan2(front, Dot(touch.Normal, across)) * (22 / size);
    }
    const float line = std::floor(row);
    const float x = Fraction(column + 0.5F * std::fmod(std::fabs(line), 2.0F)) - 0.5F;
    const float y = row - line - 0.75F;
    const float edge = SmoothStep(0.38F, 0.72F, std::sqrt(x * x * 1.3F + y * y));
    return light * (1.10F - 0.34F * edge);
  };
}

Texture Membrane(float folds, float floor) {
  return [=](Touch& touch, float light) {
    const float fold = std::fabs(std::sin(touch.Place.Along * kPi * folds));
    const float through = std::fabs(touch.Facing) * Mix(0.5F, 1, touch.Shadow);
    float skin = floor + 0.26F * touch.Open + 0.48F * through + 0.2F * touch.Rim;
    skin *= 0.80F + 0.25F * fold;
    skin *= 1.14F - 0.42F * touch.Place.Out + 0.10F * std::sin(touch.Place.Out * 20);
    return Mix(light, skin, 0.9F);
  };
}

Texture Rings(float step, float depth) {
  return [=](Touch& touch, float light) {
    return light *
           (1 - depth * 0.5F + depth * SmoothStep(0, 0.8F, Fraction(touch.Place.Along / step)));
  };
}

Texture Mottle(float size, float depth) {
  return [=](Touch& touch, float light) {
    const float n = 0.65F * Noise(touch.At * (1 / size)) + 0.35F * Noise(touch.At * (2.1F / size));
    return light * (1 + depth * 2 * (n - 0.5F));
  };
}

Texture Flames(float length) {
  return [=](Touch& touch, float) {
    const float tip = Clamp(touch.Place.Along / length);
    const float lick = Noise(touch.At * 0.16F) - 0.5F;
    return Clamp(0.22F + 0.85F * touch.Front * (1.05F - 0.75F * tip) + 0.25F * lick);
  };
}

Texture Strands(float size, float depth) {
  return [=](Touch& touch, float light) {
    const Vec p{touch.At.X / size, touch.At.Y / (size * 4), touch.At.Z / size};
    return light * (1 + depth * 2 * (Noise(p) - 0.5F));
  };
}

}  // namespace orvane::paint
