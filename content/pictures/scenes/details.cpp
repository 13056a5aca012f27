#include "content/pictures/scenes/details.h"

#include <cmath>

#include "content/pictures/scenes/noise.h"

namespace orvane::paint::scene {
namespace {

int Cells(float length) {
  return static_cast<int>(std::ceil(length));
}

float Chance(const Standing& at, int number) {
  return Hash(number, at.Seed, 91);
}

}  // namespace

Dresser::Foot Dresser::FootOf(const Standing& at) const {
  const float ground = terrain_.Height(at.X, at.Z, 6);
  return {view_.ColumnOf(at.X, at.Z), view_.RowOf(ground, at.Z), view_.Focal / at.Z};
}

void Dresser::Put(float column, float row, float z, Colour colour, float cover) {
  const int x = static_cast<int>(std::floor(column));
  const int y = static_cast<int>(std::floor(row));
  if (x < 0 || y < 0 || x >= view_.Width || y >= view_.Height) return;
  // The ground under a thing's foot counts as being behind it.
  if (painting_.Depth(x, y) < z * 0.96F - 2) return;
  const Colour air = terrain_.Haze(Unit(view_.Through(x, y)));
  painting_.canvas.Blend(x, y, Mix(colour, air, terrain_.HazeCover(z)), cover);
}

void Dresser::Stone(const Standing& at, RampView rock, Colour shadow) {
  const Foot foot = FootOf(at);
  const float radius = at.Size * foot.Scale;
  if (radius < 0.8F) return;
  const float side = terrain_.Light().X < 0 ? 1.0F : -1.0F;
  const float wide = radius * 1.4F;
  for (int y = Cells(-radius); y <= Cells(radius * 0.7F); ++y) {
    for (int x = Cells(-wide * 1.6F); x <= Cells(wide * 1.9F); ++x) {
      const float fx = static_cast<float>(x);
      const float fy = static_cast<float>(y);
      const float angle = std::atan2(fy, fx);
      float edge = fx * fx / (wide * wide) + fy * fy / (radius * radius * 0.8F);
      edge *= 1 + 0.22F * std::sin(angle * 3 + Chance(at, 1) * 6) +
              0.12F * std::sin(angle * 5 + Chance(at, 2) * 6);
      if (edge < 1 && fy < radius * 0.55F) {
        // Three facets instead of a ball: a stone is broken, not turned.
        const float facet = fy < -radius * 0.25F ? 0.30F : side * fx < -wide * 0.1F ? 0.08F : -0.2F;
        const float light = 0.5F + facet - 0.15F * fy / radius +
                            0.22F * (Noise(fx * 0.4F, fy * 0.4F, at.Seed) - 0.5F);
        Put(foot.Column + fx, foot.Row + fy, at.Z, OnRamp(rock, light));
        continue;
      }
      const float shade_x = (fx - side * radius * 0.7F) / (wide * 1.15F);
      const float shade_y = (fy - radius * 0.35F) / (radius * 0.36F);
      if (fy > -radius * 0.2F && shade_x * shade_x + shade_y * shade_y < 1) {
        Put(foot.Column + fx, foot.Row + fy, at.Z, shadow, 0.55F);
      }
    }
  }
}

void Dresser::Shade(float x, float z, float across, float deep, Colour shadow) {
  const float left = view_.ColumnOf(x - across, z);
  const float right = view_.ColumnOf(x + across, z);
  const float top = view_.RowOf(0, z + deep);
  const float bottom = view_.RowOf(0, z - deep);
  const float middle = view_.RowOf(0, z);
  for (int y = Cells(top); y <= Cells(bottom); ++y) {
    for (int cell = Cells(left); cell <= Cells(right); ++cell) {
      const auto row = static_cast<float>(y);
      const auto column = static_cast<float>(cell);
      const float off_x = 2 * (column - left) / (right - left) - 1;
      const float off_y =
          row < middle ? (middle - row) / (middle - top) : (row - middle) / (bottom - middle);
      const float inside = 1 - std::sqrt(off_x * off_x + off_y * off_y);
      if (inside > 0) Put(column, row, z - deep, shadow, 0.55F * SmoothStep(0, 0.45F, inside));
    }
  }
}

void Dresser::Limb(std::span<const Joint> joints, RampView tones) {
  const float side = terrain_.Light().X < 0 ? 1.0F : -1.0F;
  for (size_t k = 0; k + 1 < joints.size(); ++k) {
    const Joint& from = joints[k];
    const Joint& to = joints[k + 1];
    const float x0 = view_.ColumnOf(from.Place.X, from.Place.Z);
    const float y0 = view_.RowOf(from.Place.Y, from.Place.Z);
    const float x1 = view_.ColumnOf(to.Place.X, to.Place.Z);
    const float y1 = view_.RowOf(to.Place.Y, to.Place.Z);
    const float r0 = from.Radius / from.Place.Z * view_.Focal;
    const float r1 = to.Radius / to.Place.Z * view_.Focal;
    const float length = (x1 - x0) * (x1 - x0) + (y1 - y0) * (y1 - y0) + 1e-4F;
    const float wide = std::max(r0, r1) + 1;
    for (int row = Cells(std::min(y0, y1) - wide); row <= Cells(std::max(y0, y1) + wide); ++row) {
      for (int column = Cells(std::min(x0, x1) - wide); column <= Cells(std::max(x0, x1) + wide);
           ++column) {
        const auto x = static_cast<float>(column);
        const auto y = static_cast<float>(row);
        const float along = Clamp(((x - x0) * (x1 - x0) + (y - y0) * (y1 - y0)) / length);
        const float off_x = x - Mix(x0, x1, along);
        const float off_y = y - Mix(y0, y1, along);
        const float radius = Mix(r0, r1, along);
        if (off_x * off_x + off_y * off_y > radius * radius) continue;
        const float light = 0.48F - (0.42F * side * off_x + 0.36F * off_y) / (radius + 0.3F);
        Put(x, y, Mix(from.Place.Z, to.Place.Z, along), OnRamp(tones, light));
      }
    }
  }
}

}  // namespace orvane::paint::scene
