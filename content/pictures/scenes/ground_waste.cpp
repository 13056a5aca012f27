// Barren land: a cracked floor between eroded walls, mesas in the dust, and old bones.
#include <algorithm>
#include <array>
#include <vector>

#include "content/pictures/scenes/details.h"
#include "content/pictures/scenes/noise.h"
#include "content/pictures/scenes/remains.h"
#include "content/pictures/scenes/scenes.h"
#include "content/pictures/scenes/sky.h"

namespace orvane::paint::scene {
namespace {

constexpr std::array<uint32_t, 6> kRock{0x2C2038, 0x543848, 0x8C5850, 0xBC8460, 0xDCB07C, 0xF4DCA8};
constexpr std::array<uint32_t, 6> kSoil{0x3C2C38, 0x644844, 0x906850, 0xB48C64, 0xD0AC80, 0xE8CCA0};
constexpr std::array<uint32_t, 4> kScrub{0x343028, 0x5C5838, 0x8C8450, 0xB8AC70};
constexpr std::array<uint32_t, 5> kStone{0x38283C, 0x60484C, 0x907060, 0xC09C7C, 0xE8CCA0};
constexpr std::array<uint32_t, 4> kBlades{0x3C3428, 0x645C38, 0x988C4C, 0xCCC078};

class Waste : public Terrain {
 public:
  float Height(float x, float z, int octaves) const override {
    const float floor = 0.7F * (Fbm(x * 0.05F, z * 0.05F, 3, 1) - 0.5F);
    const float off = x - 14 * std::sin(z * 0.012F + 0.6F) - 8;
    const float open = 27 + z * 0.15F;
    const float side = SmoothStep(open * 0.8F, open * 1.9F,
                                  std::fabs(off) + 12 * (Fbm(x * 0.04F, z * 0.04F, 3, 2) - 0.5F));
    const float walls = side * SmoothStep(8, 60, z) *
                        (10 + 40 * Ridges(x * 0.012F + 2, z * 0.012F + 7, octaves, 3) +
                         26 * Fbm(x * 0.022F + 5, z * 0.022F, octaves, 4));
    // Flat-topped mesas, then a broken range at the edge of sight.
    const float block = Fbm(x * 0.0075F + 4.4F, z * 0.0075F + 1, 4, 5);
    const float mesas = SmoothStep(230, 330, z) * SmoothStep(0.54F, 0.60F, block) *
                        (52 + 40 * Fbm(x * 0.05F, z * 0.05F, octaves, 6));
    const float range =
        SmoothStep(420, 800, z) * (150 * Ridges(x * 0.0042F + 3.3F, z * 0.0042F, octaves, 7) + 6);
    return floor + Terraced(walls, 6.5F) + Terraced(mesas, 17) + range;
  }

  Colour Ground(const Spot& spot) const override {
    const Vec p = spot.Place;
    const float big = Fbm(p.X * 0.035F + 11, p.Z * 0.035F, 4, 8);
    float fine = Fbm(p.X * 0.7F, p.Z * 0.7F, 4, 9);
    fine = Mix(fine, 0.5F, SmoothStep(60, 170, spot.Distance));
    const float light = 0.26F + 0.16F * spot.Normal.Y + 0.72F * spot.Sun;
    const float cloud = SmoothStep(0.50F, 0.62F, Fbm(p.X * 0.007F + 5, p.Z * 0.013F, 3, 10));
    const float lit = light * (1 - 0.2F * cloud);
    Colour ground = OnRamp(kSoil, lit * 0.66F + (big - 0.5F) * 0.4F + (fine - 0.5F) * 0.28F);
    // Mud plates: dark gaps that fade with the distance and lie in patches.
    const float gap = CellBorder(p.X * 0.22F + 0.35F * fine, p.Z * 0.22F + 0.3F * fine, 11);
    const float patch = SmoothStep(0.36F, 0.5F, big) * SmoothStep(110, 30, spot.Distance);
    ground = Mix(ground, OnRamp(kSoil, 0.12F), SmoothStep(0.075F, 0.02F, gap) * patch * 0.62F);
    const float green = SmoothStep(0.54F, 0.62F, Fbm(p.X * 0.03F + 31, p.Z * 0.03F, 4, 12));
    ground = Mix(ground, OnRamp(kScrub, lit * 0.75F + (fine - 0.5F) * 0.5F), green * 0.6F);
    // Strata follow the height, a little warped.
    const float strata = Fbm(p.Y * 0.34F + p.X * 0.01F, p.Y * 0.02F + 3, 3, 13);
    const float tone = light * 0.84F + (strata - 0.5F) * 0.4F + (fine - 0.5F) * 0.2F;
    return Mix(ground, OnRamp(kRock, tone), SmoothStep(0.10F, 0.26F, 1 - spot.Normal.Y));
  }

  Colour Sky(Vec direction) const override {
    const Colour clear = GradientSky(direction, Hex(0x485890), Hex(0xF4D0A4));
    return Clouds(clear, direction, {Hex(0x8C7898), Hex(0xFCE8C8), 0.48F, 0.2F, 0.9F, 47}, Light());
  }
  Colour Haze(Vec direction) const override {
    return Mix(Hex(0xC8A49C), Hex(0xE8C8A8), Clamp(direction.Y * 4));
  }
  float HazeCover(float distance) const override {
    return 1 - std::exp(-std::pow(distance / 660, 1.3F));
  }
  // Unit({-0.7, 0.58, -0.16}), worked out: clang folds that call to other last digits than it
  // computes.
  Vec Light() const override { return {-0.758364975F, 0.628359556F, -0.173340559F}; }

 private:
  // Steps of the given height, softly rounded, mixed into the slope.
  static float Terraced(float height, float step) {
    const float level = height / step;
    const float whole = std::floor(level);
    return Mix(height, (whole + SmoothStep(0.55F, 1, level - whole)) * step, 0.62F);
  }
};

void Dress(Dresser& dresser, const Waste& land) {
  DrawDeadTree(dresser, -72, 190, 2.2F, 80);
  DrawSkeleton(dresser);
  DrawDeadTree(dresser, -34, 112, 1.7F, 81);
  DrawDeadTree(dresser, 57, 92, 1.5F, 82);
  std::vector<Standing> things;
  for (int k = 0; k < 800; ++k) {
    const float chance = Hash(k, 3, 60);
    const float z = 13 + chance * std::sqrt(chance) * 150;
    things.push_back({(Hash(k, 7, 60) - 0.5F) * 1.6F * z, z, 0.2F + 0.4F * Hash(k, 9, 60), k});
  }
  std::sort(things.begin(), things.end(),
            [](const Standing& a, const Standing& b) { return a.Z > b.Z; });
  for (const Standing& at : things) {
    if (land.Height(at.X, at.Z, 6) > 4) continue;
    if (Hash(at.Seed, 11, 60) < 0.3F) {
      const float size = Hash(at.Seed, 12, 60) * Hash(at.Seed, 13, 60);
      dresser.Stone({at.X, at.Z, 0.1F + 0.42F * size, at.Seed}, kStone, Hex(0x4C3440));
    } else if (Fbm(at.X * 0.03F + 31, at.Z * 0.03F, 4, 12) > 0.53F) {
      dresser.Tuft(at, kBlades);
    }
  }
}

}  // namespace

Image PaintGroundWaste() {
  const View view{960, 576, 216, 660};
  const Waste land;
  Painting painting = PaintTerrain(land, view);
  Dresser dresser(land, view, painting);
  Dress(dresser, land);
  return ToSheet(Painted(Shrink(painting.canvas, 2, 2), 2, 0.72F), 240, 5);
}

}  // namespace orvane::paint::scene
