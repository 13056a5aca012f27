// Open grass land: a brook and trees in the middle distance, snow mountains behind.
#include <algorithm>
#include <array>
#include <vector>

#include "content/pictures/scenes/details.h"
#include "content/pictures/scenes/noise.h"
#include "content/pictures/scenes/scenes.h"
#include "content/pictures/scenes/sky.h"

namespace orvane::paint::scene {
namespace {

constexpr std::array<uint32_t, 6> kGrass{0x12402C, 0x1C5C34, 0x34803A,
                                         0x5CA444, 0x90C454, 0xC8E078};
constexpr std::array<uint32_t, 5> kEarth{0x5C4430, 0x8C6C44, 0xB4945C, 0xD8BC80, 0xF0DCA8};
constexpr std::array<uint32_t, 6> kRock{0x303450, 0x4C5470, 0x748090, 0xA4ACB0, 0xD8DCD4, 0xFFFFF4};
constexpr std::array<uint32_t, 4> kSnow{0x7C8CC0, 0xACC0E0, 0xECF4FC, 0xFFFFFF};
constexpr std::array<uint32_t, 3> kForest{0x1C4048, 0x306054, 0x5C8C60};
constexpr std::array<uint32_t, 4> kWater{0x2C6CA8, 0x5CA0D0, 0xA8D8F0, 0xF0FCFF};
constexpr std::array<uint32_t, 6> kWarmLeaves{0x1C2C28, 0x2C4428, 0x4C6C2C,
                                              0x789038, 0xACBC4C, 0xE4E47C};
constexpr std::array<uint32_t, 6> kLeaves{0x0C2C30, 0x144430, 0x246434,
                                          0x448C38, 0x7CB848, 0xBCE064};
constexpr std::array<uint32_t, 5> kBlades{0x1C5830, 0x307C34, 0x60AC40, 0xA0D454, 0xE0F098};
constexpr std::array<uint32_t, 4> kStone{0x383C54, 0x646C80, 0x98A0A4, 0xCCD0C4};
constexpr float kWaterLevel = -2.2F;

class OpenLand : public Terrain {
 public:
  float Height(float x, float z, int octaves) const override {
    const float floor = 0.8F * (Fbm(x * 0.05F, z * 0.05F, 3, 1) - 0.5F);
    const float hills = SmoothStep(50, 190, z) *
                        (44 * Fbm(x * 0.010F + 9, z * 0.010F, std::max(3, octaves - 3), 2) - 20);
    const float valley = SmoothStep(20, 60, std::fabs(x - Meander(z))) * 0.6F + 0.4F;
    const float range = SmoothStep(380, 760, z);
    const float mountains =
        range * (230 * Ridges(x * 0.0034F + 8.1F, z * 0.0034F, octaves, 5) - 22);
    return floor + hills * valley + mountains;
  }

  Colour Ground(const Spot& spot) const override {
    const Vec p = spot.Place;
    const float big = Fbm(p.X * 0.035F + 11, p.Z * 0.035F, 4, 7);
    float fine = Fbm(p.X * 0.7F, p.Z * 0.7F, 4, 8);
    fine = Mix(fine, 0.5F, SmoothStep(60, 170, spot.Distance));
    const float light = 0.30F + 0.16F * spot.Normal.Y + 0.72F * spot.Sun;
    if (p.Z > 90 && p.Z < 420 && p.Y < kWaterLevel) {
      const float ripple = Noise(p.X * 0.3F, p.Z * 0.05F, 12);
      return OnRamp(kWater, 0.35F + 0.5F * (ripple - 0.3F));
    }
    // Bands of cloud shadow lie across the land.
    const float cloud = SmoothStep(0.48F, 0.60F, Fbm(p.X * 0.010F + 3, p.Z * 0.022F, 3, 9));
    const float lit = light * (1.04F - 0.36F * cloud);
    Colour ground = OnRamp(kGrass, lit * 0.62F + (big - 0.5F) * 0.42F + (fine - 0.5F) * 0.26F);
    const float track = std::fabs(p.X - Track(p.Z)) + 1.6F * (fine - 0.5F) + 2 * (big - 0.5F);
    const float bare = SmoothStep(2.9F, 1.7F, track) * SmoothStep(360, 240, p.Z);
    ground = Mix(ground, OnRamp(kEarth, lit * 0.62F + (fine - 0.5F) * 0.4F), bare * 0.85F);
    if (p.Z > 420) ground = Mix(ground, OnRamp(kForest, light), 0.75F);
    const float steep = SmoothStep(0.30F, 0.5F, 1 - spot.Normal.Y);
    Colour result = Mix(ground, OnRamp(kRock, light * 0.9F + (fine - 0.5F) * 0.2F), steep);
    const float snow_line = SmoothStep(76, 112, p.Y + 40 * (big - 0.5F) + 30 * (spot.Sun - 0.4F));
    const float holds = 1 - SmoothStep(0.5F, 0.75F, 1 - spot.Normal.Y);
    return Mix(result, OnRamp(kSnow, light * 1.05F), snow_line * holds);
  }

  Colour Sky(Vec direction) const override {
    const Colour clear = GradientSky(direction, Hex(0x1C60C0), Hex(0xC8E8F4));
    return Clouds(clear, direction, {Hex(0x90A8D0), Hex(0xFFFFFF), 0.49F, 0.17F, 1.15F, 31},
                  Light());
  }
  Colour Haze(Vec direction) const override {
    return Mix(Hex(0xA8C8E4), Hex(0xD8ECF4), Clamp(direction.Y * 3));
  }
  float HazeCover(float distance) const override {
    return 1 - std::exp(-std::pow(distance / 1050, 1.35F));
  }
  Vec Light() const override { return Unit({-0.66F, 0.56F, -0.28F}); }

  // The footpath, from the lower right past the middle into the hills.
  static float Track(float z) {
    return 13 + 0.12F * z - 24 * SmoothStep(30, 110, z) + 46 * SmoothStep(110, 230, z);
  }

 private:
  static float Meander(float z) { return 30 * std::sin(z * 0.011F + 0.8F) + 12; }
};

void Dress(Dresser& dresser, const OpenLand& land) {
  std::vector<Standing> things;
  for (int k = 0; k < 1500; ++k) {
    const float z = 120 + Hash(k, 5, 40) * 320;
    const float x = (Hash(k, 8, 40) - 0.5F) * 1.7F * z;
    if (Fbm(x * 0.017F + 40, z * 0.03F, 3, 41) < 0.565F) continue;
    if (land.Height(x, z, 6) < kWaterLevel + 1.5F) continue;
    if (std::fabs(x - OpenLand::Track(z)) < 14) continue;
    things.push_back({x, z, 2.6F + 2.4F * Hash(k, 2, 40), k});
  }
  std::sort(things.begin(), things.end(),
            [](const Standing& a, const Standing& b) { return a.Z > b.Z; });
  for (const Standing& at : things) {
    if (Hash(at.Seed, 3, 40) < 0.3F)
      dresser.Fir({at.X, at.Z, at.Size * 1.4F, at.Seed}, kLeaves);
    else
      dresser.Tree(at, Hash(at.Seed, 4, 40) < 0.22F ? RampView(kWarmLeaves) : RampView(kLeaves));
  }
  things.clear();
  for (int k = 0; k < 1500; ++k) {
    const float chance = Hash(k, 3, 50);
    const float z = 13 + chance * std::sqrt(chance) * 150;
    const float x = (Hash(k, 7, 50) - 0.5F) * 1.6F * z;
    things.push_back({x, z, 0.22F + 0.36F * Hash(k, 9, 50), k});
  }
  std::sort(things.begin(), things.end(),
            [](const Standing& a, const Standing& b) { return a.Z > b.Z; });
  for (const Standing& at : things) {
    const int kind = static_cast<int>(Hash(at.Seed, 11, 50) * 100);
    if (land.Height(at.X, at.Z, 6) > 4) continue;
    if (kind < 4) {
      dresser.Stone({at.X, at.Z, at.Size * 0.5F, at.Seed}, kStone, Hex(0x143C30));
    } else if (kind < 10) {
      dresser.Flowers(at,
                      kind < 6   ? Hex(0xFFF4A0)
                      : kind < 8 ? Hex(0xFFFFFF)
                                 : Hex(0xF4A8C8),
                      kBlades);
    } else {
      dresser.Tuft(at, kBlades);
    }
  }
}

}  // namespace

Image PaintGroundOpen() {
  const View view{960, 576, 224, 660};
  const OpenLand land;
  Painting painting = PaintTerrain(land, view);
  Dresser dresser(land, view, painting);
  Dress(dresser, land);
  return ToSheet(Painted(Shrink(painting.canvas, 2, 2), 2, 0.72F), 240, 5);
}

}  // namespace orvane::paint::scene
