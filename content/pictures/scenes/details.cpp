#include "content/pictures/scenes/details.h"

#include <cmath>

#include "content/pictures/scenes/noise.h"

namespace orvane::paint::scene {
namespace {

constexpr float turn = 2.399963F;  // the golden angle spreads things evenly

int Cells(float length) {
  return static_cast<int>(std::ceil(length));
}

float Chance(const Standing& at, int number) {
  return Hash(number, at.seed, 91);
}

}  // namespace

Dresser::Foot Dresser::FootOf(const Standing& at) const {
  const float ground = terrain_.Height(at.x, at.z, 6);
  return {view_.ColumnOf(at.x, at.z), view_.RowOf(ground, at.z), view_.focal / at.z};
}

void Dresser::Put(float column, float row, float z, Colour colour, float cover) {
  const int x = static_cast<int>(std::floor(column));
  const int y = static_cast<int>(std::floor(row));
  if (x < 0 || y < 0 || x >= view_.width || y >= view_.height) return;
  // The ground under a thing's foot counts as being behind it.
  if (painting_.Depth(x, y) < z * 0.96F - 2) return;
  const Colour air = terrain_.Haze(Unit(view_.Through(x, y)));
  painting_.canvas.Blend(x, y, Mix(colour, air, terrain_.HazeCover(z)), cover);
}

void Dresser::Tree(const Standing& at, Ramp leaves) {
  const Foot foot = FootOf(at);
  const float radius = at.size * foot.scale;
  if (radius < 0.7F) return;
  const float side = terrain_.Light().x < 0 ? 1.0F : -1.0F;
  for (int y = Cells(-radius * 0.3F); y <= Cells(radius * 0.3F); ++y) {
    for (int x = Cells(-radius * 1.4F); x <= Cells(radius * 1.4F); ++x) {
      const float across = static_cast<float>(x) / (radius * 1.3F);
      const float down = static_cast<float>(y) / (radius * 0.26F);
      if (across * across + down * down < 1) {
        Put(foot.column + radius * 0.45F * side + static_cast<float>(x),
            foot.row + static_cast<float>(y), at.z, OnRamp(leaves, 0.06F), 0.5F);
      }
    }
  }
  for (float up = 0; up < radius * 0.7F; up += 0.7F) {
    for (float x = -radius * 0.12F; x <= radius * 0.12F; x += 0.7F) {
      Put(foot.column + x, foot.row - up, at.z, OnRamp(leaves, 0.02F));
    }
  }
  constexpr int clusters = 15;
  for (int k = 0; k < clusters; ++k) {
    const float angle = static_cast<float>(k) * turn;
    const float spread = std::sqrt(static_cast<float>(k) / clusters);
    const float offset_x = std::cos(angle) * spread * radius * 0.8F;
    const float offset_y =
        -radius * (1.15F + 0.2F * Chance(at, 3)) + std::sin(angle) * spread * radius * 0.72F;
    const float leaf = radius * (0.34F + 0.16F * Chance(at, k + 20));
    for (int y = Cells(-leaf); y <= Cells(leaf); ++y) {
      for (int x = Cells(-leaf); x <= Cells(leaf); ++x) {
        const float fx = static_cast<float>(x);
        const float fy = static_cast<float>(y);
        const float rough = 0.4F * (Hash(x + k * 31, y, at.seed) - 0.5F);
        if ((fx * fx + fy * fy) / (leaf * leaf) + rough > 1) continue;
        const float light = 0.4F - 0.28F * side * (fx + offset_x) / radius -
                            0.30F * (fy + offset_y + radius) / radius - 0.16F * fy / leaf +
                            0.12F * (Hash(x, y, at.seed + k) - 0.5F);
        Put(foot.column + offset_x + fx, foot.row + offset_y + fy, at.z, OnRamp(leaves, light));
      }
    }
  }
}

void Dresser::Fir(const Standing& at, Ramp needles) {
  const Foot foot = FootOf(at);
  const float tall = 3 * at.size * foot.scale;
  if (tall < 1.5F) return;
  const float side = terrain_.Light().x < 0 ? 1.0F : -1.0F;
  for (float up = 0; up < tall; up += 0.6F) {
    const float share = up / tall;
    const float tier = share * 5 - std::floor(share * 5);
    const float half = tall * 0.24F * (1 - share) * (1.15F - 0.5F * tier) + 0.3F;
    for (float x = -half; x <= half; x += 0.6F) {
      const float ragged = Hash(static_cast<int>(up * 2), static_cast<int>(x * 2), at.seed);
      if (std::fabs(x) > half * (0.75F + 0.25F * ragged)) continue;
      const float light = 0.42F - 0.4F * side * x / (half + 0.5F) - 0.35F * (1 - tier) * 0.6F +
                          0.2F * share + 0.2F * (ragged - 0.5F);
      Put(foot.column + x, foot.row - up, at.z, OnRamp(needles, light));
    }
  }
}

void Dresser::Stone(const Standing& at, Ramp rock, Colour shadow) {
  const Foot foot = FootOf(at);
  const float radius = at.size * foot.scale;
  if (radius < 0.8F) return;
  const float side = terrain_.Light().x < 0 ? 1.0F : -1.0F;
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
                            0.22F * (Noise(fx * 0.4F, fy * 0.4F, at.seed) - 0.5F);
        Put(foot.column + fx, foot.row + fy, at.z, OnRamp(rock, light));
        continue;
      }
      const float shade_x = (fx - side * radius * 0.7F) / (wide * 1.15F);
      const float shade_y = (fy - radius * 0.35F) / (radius * 0.36F);
      if (fy > -radius * 0.2F && shade_x * shade_x + shade_y * shade_y < 1) {
        Put(foot.column + fx, foot.row + fy, at.z, shadow, 0.55F);
      }
    }
  }
}

void Dresser::Tuft(const Standing& at, Ramp blades) {
  const Foot foot = FootOf(at);
  const float longest = at.size * foot.scale;
  if (longest < 1) return;
  const int count = 3 + static_cast<int>(foot.scale * 0.3F);
  for (int blade = 0; blade < count; ++blade) {
    const float lean = (Chance(at, blade * 4) - 0.5F) * 1.3F;
    const float start = (Chance(at, blade * 4 + 1) - 0.5F) * at.size * foot.scale * 1.3F;
    const float length = longest * (0.5F + 0.5F * Chance(at, blade * 4 + 2));
    const float tone = 0.3F * (Chance(at, blade * 4 + 3) - 0.5F);
    for (float up = 0; up < length; up += 0.7F) {
      const float share = up / length;
      Put(foot.column + start + lean * share * share * length, foot.row - up, at.z,
          OnRamp(blades, share * 0.75F + 0.15F + tone));
    }
  }
}

void Dresser::Flowers(const Standing& at, Colour petal, Ramp blades) {
  Tuft(at, blades);
  const Foot foot = FootOf(at);
  const float length = at.size * foot.scale;
  const int count = 1 + static_cast<int>(3 * Chance(at, 50));
  for (int k = 0; k < count; ++k) {
    const float x = foot.column + (Chance(at, 60 + k) - 0.5F) * length * 1.6F;
    const float y = foot.row - length * (0.6F + 0.6F * Chance(at, 70 + k));
    const float radius = std::max(0.6F, length * 0.13F);
    for (float dy = -radius; dy <= radius; dy += 0.5F) {
      for (float dx = -radius; dx <= radius; dx += 0.5F) {
        Put(x + dx, y + dy, at.z, petal * (dy > 0 ? 0.85F : 1.0F));
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
  for (float row = std::floor(top); row <= bottom; ++row) {
    for (float column = std::floor(left); column <= right; ++column) {
      const float off_x = 2 * (column - left) / (right - left) - 1;
      const float off_y =
          row < middle ? (middle - row) / (middle - top) : (row - middle) / (bottom - middle);
      const float inside = 1 - std::sqrt(off_x * off_x + off_y * off_y);
      if (inside > 0) Put(column, row, z - deep, shadow, 0.55F * SmoothStep(0, 0.45F, inside));
    }
  }
}

void Dresser::Limb(std::span<const Joint> joints, Ramp tones) {
  const float side = terrain_.Light().x < 0 ? 1.0F : -1.0F;
  for (size_t k = 0; k + 1 < joints.size(); ++k) {
    const Joint& from = joints[k];
    const Joint& to = joints[k + 1];
    const float x0 = view_.ColumnOf(from.place.x, from.place.z);
    const float y0 = view_.RowOf(from.place.y, from.place.z);
    const float x1 = view_.ColumnOf(to.place.x, to.place.z);
    const float y1 = view_.RowOf(to.place.y, to.place.z);
    const float r0 = from.radius / from.place.z * view_.focal;
    const float r1 = to.radius / to.place.z * view_.focal;
    const float length = (x1 - x0) * (x1 - x0) + (y1 - y0) * (y1 - y0) + 1e-4F;
    const float wide = std::max(r0, r1) + 1;
    for (float y = std::floor(std::min(y0, y1) - wide); y <= std::max(y0, y1) + wide; ++y) {
      for (float x = std::floor(std::min(x0, x1) - wide); x <= std::max(x0, x1) + wide; ++x) {
        const float along = Clamp(((x - x0) * (x1 - x0) + (y - y0) * (y1 - y0)) / length);
        const float off_x = x - Lerp(x0, x1, along);
        const float off_y = y - Lerp(y0, y1, along);
        const float radius = Lerp(r0, r1, along);
        if (off_x * off_x + off_y * off_y > radius * radius) continue;
        const float light = 0.48F - (0.42F * side * off_x + 0.36F * off_y) / (radius + 0.3F);
        Put(x, y, Lerp(from.place.z, to.place.z, along), OnRamp(tones, light));
      }
    }
  }
}

}  // namespace orvane::paint::scene
