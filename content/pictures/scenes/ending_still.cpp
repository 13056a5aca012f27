// Behind the credits: dawn over the open world, and the heroes who look at it from a hill.
#include <algorithm>
#include <array>
#include <vector>

#include "content/pictures/figures/hero.h"
#include "content/pictures/figures/render.h"
#include "content/pictures/scenes/details.h"
#include "content/pictures/scenes/noise.h"
#include "content/pictures/scenes/scenes.h"
#include "content/pictures/scenes/sky.h"

namespace orvane::paint::scene {
namespace {

constexpr std::array<uint32_t, 6> kGrass{0x14203C, 0x20404C, 0x3C6448,
                                         0x74904C, 0xC0B85C, 0xFCE890};
constexpr std::array<uint32_t, 5> kHillside{0x101430, 0x1C2840, 0x34483C, 0x646C3C, 0xA89850};
constexpr std::array<uint32_t, 5> kRock{0x28204C, 0x503C68, 0x8C5C78, 0xD0948C, 0xFCD8A8};
constexpr std::array<uint32_t, 5> kLeaves{0x10182C, 0x1C3438, 0x3C5838, 0x807C3C, 0xD8B858};
constexpr std::array<uint32_t, 4> kBlades{0x14283C, 0x345440, 0x809048, 0xE8D470};
constexpr float kWaterLevel = -4;
// Left of the lines of text, which are white and have no rim.
constexpr Vec kSun{-0.47F, 0.052F, 1};
constexpr View kView{908, 600, 396, 640, 30};

class Dawn : public Terrain {
 public:
  float Height(float x, float z, int octaves) const override {
    const float roll = SmoothStep(70, 200, z) *
                       (46 * Fbm(x * 0.009F + 3, z * 0.009F, std::max(3, octaves - 2), 2) - 22);
    const float shore = SmoothStep(30, 120, std::fabs(x + 40 - 50 * std::sin(z * 0.006F)));
    const float range = SmoothStep(480, 760, z) *
                        (170 * Ridges(x * 0.0036F + 4.1F, z * 0.0036F, octaves, 5) - 6) *
                        (0.28F + 0.72F * SmoothStep(30, 330, std::fabs(x + 225)));
    return -3.5F + roll * (0.25F + 0.75F * shore) + range;
  }

  Colour Ground(const Spot& spot) const override {
    const Vec p = spot.Place;
    const float fine = Fbm(p.X * 0.3F, p.Z * 0.3F, 4, 8) - 0.5F;
    if (p.Y < kWaterLevel) {
      const float ripple = Noise(p.X * 0.2F, p.Z * 0.05F, 12) - 0.5F;
      const Vec way = Unit({p.X, kView.Eye - p.Y, p.Z});
      const Vec mirrored = Unit({way.X + 0.03F * ripple, way.Y * (1 + 0.5F * ripple), way.Z});
      return Sky(mirrored) * 0.86F;
    }
    const float light = 0.16F + 0.14F * spot.Normal.Y + 0.74F * spot.Sun;
    const float big = Fbm(p.X * 0.02F, p.Z * 0.02F, 4, 7) - 0.5F;
    const Colour ground = OnRamp(kGrass, light * 0.8F + 0.4F * big + 0.2F * fine);
    const float steep = SmoothStep(0.22F, 0.42F, 1 - spot.Normal.Y) + SmoothStep(460, 520, p.Z);
    return Mix(ground, OnRamp(kRock, light + 0.2F * fine), steep);
  }

  Colour Sky(Vec direction) const override {
    const float up = Clamp(direction.Y / direction.Z / 0.6F);
    const float x = direction.X / direction.Z - kSun.X;
    const float y = direction.Y / direction.Z - kSun.Y;
    const float from_sun = std::sqrt(x * x + y * y);
    // The horizon is golden about the sun and rose elsewhere.
    const float gold = std::exp(-from_sun * 4.4F);
    Colour sky = Mix(Mix(Hex(0xB8607C), Hex(0xFCD48C), gold),
                     Mix(Hex(0xA05480), Hex(0xE08070), gold), up / 0.13F);
    sky = Mix(sky, Hex(0x74487C), (up - 0.11F) / 0.17F);
    sky = Mix(sky, Hex(0x403874), (up - 0.27F) / 0.26F);
    sky = Mix(sky, Hex(0x202458), (up - 0.52F) / 0.5F);
    sky = sky + Hex(0xFFC070) * (0.55F * std::exp(-from_sun * 8)) +
          Hex(0xFFE0A0) * (0.5F * std::exp(-from_sun * 26));
    const float near = std::exp(-from_sun * 2.4F);
    const Colour clouded = Clouds(sky, direction,
                                  {Mix(Hex(0x4C3C74), Hex(0xC87078), near),
                                   Mix(Hex(0xB87898), Hex(0xFFE0A8), near), 0.50F, 0.2F, 0.8F, 133},
                                  Light());
    return Mix(Hex(0xFFFAE0), clouded, SmoothStep(0.040F, 0.046F, from_sun));
  }
  Colour Haze(Vec direction) const override {
    const float off = std::fabs(direction.X / direction.Z - kSun.X);
    return Mix(Hex(0x8C5884), Hex(0xE89C80), std::exp(-off * 5));
  }
  float HazeCover(float distance) const override {
    return 0.84F * (1 - std::exp(-std::pow(distance / 680, 1.5F)));
  }
  Vec Light() const override { return Unit({-0.62F, 0.34F, 0.52F}); }
};

void PlantTrees(Dresser& dresser, const Dawn& land) {
  std::vector<Standing> trees;
  for (int k = 0; k < 1400; ++k) {
    const float z = 130 + Hash(k, 5, 40) * 320;
    const float x = (Hash(k, 8, 40) - 0.5F) * 1.6F * z;
    if (Fbm(x * 0.017F + 40, z * 0.02F, 3, 41) < 0.53F) continue;
    if (land.Height(x, z, 6) < kWaterLevel + 1.5F) continue;
    trees.push_back({x, z, 2.2F + 2.2F * Hash(k, 2, 40), k});
  }
  std::sort(trees.begin(), trees.end(),
            [](const Standing& a, const Standing& b) { return a.Z > b.Z; });
  for (const Standing& at : trees) {
    if (Hash(at.Seed, 3, 40) < 0.4F)
      dresser.Fir({at.X, at.Z, at.Size * 1.3F, at.Seed}, kLeaves);
    else
      dresser.Tree(at, kLeaves);
  }
}

float HillTop(float x) {
  const float off = (x - 640) / 520;
  return 452 + 62 * off * off + 12 * (Fbm(x * 0.01F, 0.5F, 4, 90) - 0.5F);
}

// The near hill: dark below, where the last lines of text stand, lit along its rim.
void DrawHill(Canvas& canvas) {
  for (int x = 0; x < canvas.Width; ++x) {
    const auto column = static_cast<float>(x);
    const float top = HillTop(column);
    for (int y = static_cast<int>(top); y < canvas.Height; ++y) {
      const auto row = static_cast<float>(y);
      const float below = row - top;
      const float patch = Fbm(column * 0.012F, row * 0.03F, 5, 91) - 0.5F;
      const float light = 0.42F + 0.4F * patch + 0.5F * std::exp(-below * 0.16F) - below * 0.0034F;
      canvas.Blend(x, y, OnRamp(kHillside, light));
    }
  }
  for (int k = 0; k < 2600; ++k) {
    const float x = Hash(k, 1, 92) * static_cast<float>(canvas.Width);
    const float depth = Hash(k, 2, 92) * Hash(k, 2, 92);
    const float foot = HillTop(x) + depth * 150;
    const float length = 5 + 9 * Hash(k, 3, 92) + 10 * depth;
    const float lean = (Hash(k, 4, 92) - 0.35F) * 0.9F;
    for (int step = 0; step < static_cast<int>(length / 0.7F); ++step) {
      const float up = static_cast<float>(step) * 0.7F;
      const float share = up / length;
      const float tone = 0.25F + 0.75F * share - 0.62F * depth - 0.12F * Hash(k, 5, 92);
      canvas.Blend(static_cast<int>(x + lean * share * up), static_cast<int>(foot - up),
                   OnRamp(kBlades, tone));
    }
  }
}

void DrawHero(Canvas& canvas, const Model& model, const std::vector<Material>& materials, float x,
              float turn) {
  paint::View pose;
  pose.Width = 130;
  pose.Height = 130;
  pose.Yaw = 3.14159265F + turn;
  pose.Pitch = 0.05F;
  pose.Samples = 2;
  pose.Dither = 0.4F;
  pose.Scale = 3.5F;
  pose.Light = {-0.7F, 0.6F, -0.1F};
  pose.Behind = {-0.5F, 0.4F, -0.8F};
  const Sprite sprite = Render(model, materials, pose);
  const int left = static_cast<int>(x) - 65;
  const int top = static_cast<int>(HillTop(x)) - 98;
  for (int y = 0; y < 130; ++y) {
    for (int column = 0; column < 130; ++column) {
      const uint32_t pixel = sprite.Picture.At(column, y);
      if (pixel == 0xFFFFFF) continue;
      const Colour day = Hex(pixel);
      const Colour dawn{day.R * 0.82F, day.G * 0.64F, day.B * 0.70F};
      canvas.Blend(left + column, top + y, Mix(day, dawn, 0.9F));
    }
  }
}

}  // namespace

Image PaintEndingStill() {
  const Dawn land;
  Painting painting = PaintTerrain(land, kView);
  Dresser dresser(land, kView, painting);
  PlantTrees(dresser, land);
  Canvas canvas = Painted(painting.canvas, 2, 0.75F);
  // Right of the lines of text, as the sun is left of them.
  DrawHero(canvas, ManModel(0), ManMaterials(), 752, 0.25F);
  DrawHero(canvas, WomanModel(0), WomanMaterials(), 830, -0.2F);
  DrawHill(canvas);
  return ToSheet(Painted(Shrink(canvas, 2, 2), 1, 0.4F), 244, 4);
}

}  // namespace orvane::paint::scene
