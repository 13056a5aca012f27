#include "content/pictures/scenes/terrain.h"

#include <limits>

namespace orvane::paint::scene {
namespace {

constexpr float kNearest = 2;
constexpr int kShadowSteps = 26;
constexpr float kShadowReach = 260;

int OctavesAt(float distance) {
  return distance < 120 ? 8 : distance < 320 ? 7 : 6;
}

Vec NormalAt(const Terrain& terrain, Vec place, float distance) {
  const float gap = 0.12F + distance * 0.004F;
  const int octaves = OctavesAt(distance);
  const float slope_x = terrain.Height(place.X + gap, place.Z, octaves) -
                        terrain.Height(place.X - gap, place.Z, octaves);
  const float slope_z = terrain.Height(place.X, place.Z + gap, octaves) -
                        terrain.Height(place.X, place.Z - gap, octaves);
  return Unit({-slope_x, 2 * gap, -slope_z});
}

// How much of the light reaches the place past the hills between, with a soft border.
float SunAt(const Terrain& terrain, Vec place, float distance) {
  const Vec light = terrain.Light();
  float open = 1;
  float reach = 1 + distance * 0.01F;
  for (int step = 0; step < kShadowSteps && reach < kShadowReach; ++step) {
    const Vec point = place + light * reach;
    const float gap = point.Y - terrain.Height(point.X, point.Z, 5);
    open = std::min(open, 0.5F + gap * 6 / reach);
    if (open < 0) return 0;
    reach = reach * 1.22F + 0.4F;
  }
  return Clamp(open);
}

// Walks away from the eye under one column and finds, from the bottom row up, what each row shows.
void FindDepths(const Terrain& terrain, const View& view, int column, Painting& painting) {
  const float side = view.Through(column, 0).X;
  int row = view.Height - 1;
  float z = kNearest;
  float height = terrain.Height(side * z, z, 8);
  while (row >= 0 && z < view.Far) {
    const float next_z = z * 1.004F + 0.04F;
    const float next_height = terrain.Height(side * next_z, next_z, OctavesAt(next_z));
    while (row >= 0 && view.RowOf(next_height, next_z) <= static_cast<float>(row) + 0.5F) {
      // Where the line of sight crosses the ground between the two steps.
      const float rise = view.Through(column, row).Y;
      const float before = view.Eye + rise * z - height;
      const float after = view.Eye + rise * next_z - next_height;
      const float share = before <= 0 ? 0 : before / (before - after);
      painting.Depth(column, row) = Mix(z, next_z, Clamp(share));
      --row;
    }
    z = next_z;
    height = next_height;
  }
}

Colour PixelColour(const Terrain& terrain, const View& view, int x, int y, float depth) {
  const Vec through = view.Through(x, y);
  const Vec direction = Unit(through);
  if (depth == std::numeric_limits<float>::infinity()) return terrain.Sky(direction);
  Vec place = Vec{0, view.Eye, 0} + through * depth;
  place.Y = terrain.Height(place.X, place.Z, OctavesAt(depth));
  const Vec normal = NormalAt(terrain, place, depth);
  const float facing = Clamp(Dot(normal, terrain.Light()));
  const float sun = facing > 0 ? facing * SunAt(terrain, place, depth) : 0;
  const Colour ground = terrain.Ground({place, normal, sun, depth});
  return Mix(ground, terrain.Haze(direction), terrain.HazeCover(depth));
}

}  // namespace

Painting PaintTerrain(const Terrain& terrain, const View& view) {
  Painting painting(view.Width, view.Height);
  painting.Depths.assign(painting.canvas.Pixels.size(), std::numeric_limits<float>::infinity());
  for (int x = 0; x < view.Width; ++x) FindDepths(terrain, view, x, painting);
  for (int y = 0; y < view.Height; ++y) {
    for (int x = 0; x < view.Width; ++x) {
      painting.canvas.At(x, y) = PixelColour(terrain, view, x, y, painting.Depth(x, y));
    }
  }
  return painting;
}

}  // namespace orvane::paint::scene
