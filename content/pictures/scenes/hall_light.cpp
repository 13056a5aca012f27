#include "content/pictures/scenes/hall_light.h"

#include <algorithm>

#include "content/pictures/scenes/colour.h"

namespace orvane::paint::scene {
namespace {

constexpr float kSight = 320;

}  // namespace

Hit March(Vec from, Vec direction, int steps) {
  float reach = 0.5F;
  Solid solid;
  for (int step = 0; step < steps && reach < kSight; ++step) {
    solid = HallAt(from + direction * reach);
    if (solid.Distance < 0.01F + reach * 0.0006F) break;
    reach += solid.Distance;
  }
  return {from + direction * reach, reach, solid.stuff};
}

Vec NormalAt(Vec p, float gap) {
  const auto at = [&](Vec offset) { return HallAt(p + offset * gap).Distance; };
  const Vec a{1, -1, -1};
  const Vec b{-1, -1, 1};
  const Vec c{-1, 1, -1};
  const Vec d{1, 1, 1};
  const Vec sum = a * at(a) + b * at(b) + c * at(c) + d * at(d);
  return Length(sum) > 0 ? Unit(sum) : Vec{0, 1, 0};
}

float Shadow(Vec from, Vec towards) {
  float open = 1;
  float reach = 1;
  for (int step = 0; step < 24 && reach < 60; ++step) {
    const float distance = HallAt(from + towards * reach).Distance;
    open = std::min(open, 7 * distance / reach);
    if (open < 0.02F) return 0;
    reach += std::max(distance, 0.6F);
  }
  return open;
}

float Openness(Vec p, Vec normal) {
  float closed = 0;
  float weight = 0.5F;
  for (int step = 1; step <= 4; ++step) {
    const float reach = 1.6F * static_cast<float>(step);
    closed += weight * Clamp((reach - HallAt(p + normal * reach).Distance) / reach);
    weight *= 0.72F;
  }
  return Clamp(1 - closed * 0.75F);
}

float Glow(Vec p, Vec normal, Vec source, float strength) {
  const Vec way = source - p;
  const float squared = Dot(way, way);
  return Clamp(Dot(normal, way) / std::sqrt(squared) * 0.7F + 0.3F) * strength / (1 + squared);
}

}  // namespace orvane::paint::scene
