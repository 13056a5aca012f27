#include <cmath>

#include "content/pictures/scenes/details.h"
#include "content/pictures/scenes/noise.h"

namespace orvane::paint::scene {
namespace {

constexpr float kFine = 0.6F;       // the step of strokes, so that none has holes
constexpr float kTurn = 2.399963F;  // the golden angle spreads things evenly

int Cells(float length) {
  return static_cast<int>(std::ceil(length));
}

float Chance(const Standing& at, int number) {
  return Hash(number, at.Seed, 91);
}

}  // namespace

void Dresser::Tree(const Standing& at, RampView leaves) {
  const Foot foot = FootOf(at);
  const float radius = at.Size * foot.Scale;
  if (radius < 0.7F) return;
  const float side = terrain_.Light().X < 0 ? 1.0F : -1.0F;
  for (int y = Cells(-radius * 0.3F); y <= Cells(radius * 0.3F); ++y) {
    for (int x = Cells(-radius * 1.4F); x <= Cells(radius * 1.4F); ++x) {
      const float across = static_cast<float>(x) / (radius * 1.3F);
      const float down = static_cast<float>(y) / (radius * 0.26F);
      if (across * across + down * down < 1) {
        Put(foot.Column + radius * 0.45F * side + static_cast<float>(x),
            foot.Row + static_cast<float>(y), at.Z, OnRamp(leaves, 0.06F), 0.5F);
      }
    }
  }
  for (int up = 0; up < Cells(radius * 0.7F); ++up) {
    for (int x = Cells(-radius * 0.12F); x <= Cells(radius * 0.12F); ++x) {
      Put(foot.Column + static_cast<float>(x), foot.Row - static_cast<float>(up), at.Z,
          OnRamp(leaves, 0.02F));
    }
  }
  // Some crowns are broad, some tall, and each leans a little.
  const float broad = 0.68F + 0.34F * Chance(at, 4);
  const float tall = 0.98F - 0.34F * Chance(at, 4) * Chance(at, 5);
  const float lean = 0.3F * (Chance(at, 6) - 0.5F);
  constexpr int clusters = 19;
  for (int k = 0; k < clusters; ++k) {
    const float angle = static_cast<float>(k) * kTurn;
    const float spread = std::sqrt(static_cast<float>(k) / clusters);
    const float up = -std::sin(angle) * spread * tall;
    const float offset_x = (std::cos(angle) * spread * broad + lean * up) * radius;
    const float offset_y = -radius * (0.52F + tall * 0.66F + up);
    const float leaf = radius * (0.26F + 0.20F * Chance(at, k + 20));
    for (int y = Cells(-leaf); y <= Cells(leaf); ++y) {
      for (int x = Cells(-leaf); x <= Cells(leaf); ++x) {
        const float fx = static_cast<float>(x);
        const float fy = static_cast<float>(y);
        const float rough = 0.4F * (Hash(x + k * 31, y, at.Seed) - 0.5F);
        if ((fx * fx + fy * fy) / (leaf * leaf) + rough > 1) continue;
        const float light = 0.4F - 0.28F * side * (fx + offset_x) / radius -
                            0.26F * (fy + offset_y + radius * 1.1F) / radius - 0.20F * fy / leaf +
                            0.12F * (Hash(x, y, at.Seed + k) - 0.5F);
        Put(foot.Column + offset_x + fx, foot.Row + offset_y + fy, at.Z, OnRamp(leaves, light));
      }
    }
  }
}

void Dresser::Fir(const Standing& at, RampView needles) {
  const Foot foot = FootOf(at);
  const float tall = 3 * at.Size * foot.Scale;
  if (tall < 1.5F) return;
  const float side = terrain_.Light().X < 0 ? 1.0F : -1.0F;
  for (int line = 0; line < Cells(tall / kFine); ++line) {
    const float up = static_cast<float>(line) * kFine;
    const float share = up / tall;
    const float tier = share * 5 - std::floor(share * 5);
    const float half = tall * 0.24F * (1 - share) * (1.15F - 0.5F * tier) + 0.3F;
    for (int step = 0; step <= Cells(2 * half / kFine); ++step) {
      const float x = static_cast<float>(step) * kFine - half;
      const float ragged = Hash(static_cast<int>(up * 2), static_cast<int>(x * 2), at.Seed);
      if (std::fabs(x) > half * (0.75F + 0.25F * ragged)) continue;
      const float light = 0.42F - 0.4F * side * x / (half + 0.5F) - 0.35F * (1 - tier) * 0.6F +
                          0.2F * share + 0.2F * (ragged - 0.5F);
      Put(foot.Column + x, foot.Row - up, at.Z, OnRamp(needles, light));
    }
  }
}

void Dresser::Tuft(const Standing& at, RampView blades) {
  const Foot foot = FootOf(at);
  const float longest = at.Size * foot.Scale;
  if (longest < 1) return;
  const int count = 3 + static_cast<int>(foot.Scale * 0.3F);
  for (int blade = 0; blade < count; ++blade) {
    const float lean = (Chance(at, blade * 4) - 0.5F) * 1.3F;
    const float start = (Chance(at, blade * 4 + 1) - 0.5F) * at.Size * foot.Scale * 1.3F;
    const float length = longest * (0.5F + 0.5F * Chance(at, blade * 4 + 2));
    const float tone = 0.3F * (Chance(at, blade * 4 + 3) - 0.5F);
    for (int step = 0; step < Cells(length / kFine); ++step) {
      const float up = static_cast<float>(step) * kFine;
      const float share = up / length;
      Put(foot.Column + start + lean * share * share * length, foot.Row - up, at.Z,
          OnRamp(blades, share * 0.75F + 0.15F + tone));
    }
  }
}

void Dresser::Flowers(const Standing& at, Colour petal, RampView blades) {
  Tuft(at, blades);
  const Foot foot = FootOf(at);
  const float length = at.Size * foot.Scale;
  const int count = 1 + static_cast<int>(3 * Chance(at, 50));
  for (int k = 0; k < count; ++k) {
    const float x = foot.Column + (Chance(at, 60 + k) - 0.5F) * length * 1.6F;
    const float y = foot.Row - length * (0.6F + 0.6F * Chance(at, 70 + k));
    const float radius = std::max(0.6F, length * 0.13F);
    const int reach = Cells(radius / kFine);
    for (int down = -reach; down <= reach; ++down) {
      for (int across = -reach; across <= reach; ++across) {
        Put(x + static_cast<float>(across) * kFine, y + static_cast<float>(down) * kFine, at.Z,
            petal * (down > 0 ? 0.85F : 1.0F));
      }
    }
  }
}

}  // namespace orvane::paint::scene
