#include "content/pictures/scenes/night_rift.h"

#include <array>

#include "content/pictures/scenes/noise.h"
#include "content/pictures/scenes/sky.h"

namespace orvane::paint::scene {
namespace {

constexpr std::array<uint32_t, 6> kRock{0x0C0A24, 0x1C1840, 0x343064, 0x5C5490, 0x9890C0, 0xE8E0F0};
constexpr std::array<uint32_t, 4> kSnow{0x3C3C78, 0x6C70A8, 0x9CA0CC, 0xD8D8F0};
constexpr float kWaterLevel = -3;
constexpr Vec kMoon{-0.262F, 0.512F, 1};  // the way to its middle, one unit deep
constexpr float kMoonRadius = 0.088F;

// Craters as soft dark seas on a bright disc.
Colour MoonColour(float x, float y) {
  const float seas = Fbm(x * 2.1F + 7, y * 2.1F + 3, 4, 61);
  const float edge = x * x + y * y;
  const float light = 1.0F - 0.16F * SmoothStep(0.42F, 0.62F, seas) - 0.14F * edge;
  return Mix(Hex(0xC8B8C8), Hex(0xFFF8E4), (light - 0.62F) / 0.38F);
}

float Star(Vec direction) {
  const float x = direction.X / direction.Z * 210;
  const float y = direction.Y / direction.Z * 210;
  const int cell_x = static_cast<int>(std::floor(x));
  const int cell_y = static_cast<int>(std::floor(y));
  if (Hash(cell_x, cell_y, 62) > 0.020F) return 0;
  const float off_x = x - static_cast<float>(cell_x) - 0.5F;
  const float off_y = y - static_cast<float>(cell_y) - 0.5F;
  return SmoothStep(0.5F, 0.1F, std::sqrt(off_x * off_x + off_y * off_y)) *
         (0.35F + 0.65F * Hash(cell_x, cell_y, 63));
}

}  // namespace

float NightRift::Height(float x, float z, int octaves) const {
  const float bed = -4.2F + 1.6F * Fbm(x * 0.03F, z * 0.03F, 3, 1);
  const float off = std::fabs(x + 12 * std::sin(z * 0.009F));
  const float shore =
      SmoothStep(36 + z * 0.10F, 130 + z * 0.22F, off + 20 * Noise(x * 0.02F, z * 0.02F, 2));
  const float walls = shore * (16 + 120 * Ridges(x * 0.008F + 1.7F, z * 0.008F, octaves, 3));
  const float range = SmoothStep(430, 640, z) *
                      (70 + 210 * Ridges(x * 0.0044F + 6.2F, z * 0.0044F, octaves, 4)) *
                      (0.40F + 0.60F * SmoothStep(20, 300, std::fabs(x + 10)));
  return bed + walls * SmoothStep(30, 140, z) + range;
}

Colour NightRift::Ground(const Spot& spot) const {
  const Vec p = spot.Place;
  const float fine = Fbm(p.X * 0.16F, p.Z * 0.16F + p.Y * 0.2F, 4, 5) - 0.5F;
  if (p.Y < kWaterLevel) {
    // Still water: the sky once more, shaken a little by ripples that flatten with the distance.
    const float shake = 0.09F * std::exp(-spot.Distance / 260);
    const float ripple_x = Noise(p.X * 0.35F, p.Z * 0.09F, 6) - 0.5F;
    const float ripple_y = Noise(p.X * 0.22F, p.Z * 0.16F, 7) - 0.5F;
    const Vec way = Unit({p.X, view_.Eye - p.Y, p.Z});
    const Vec mirrored =
        Unit({way.X + shake * ripple_x, std::fabs(way.Y + shake * 2.6F * ripple_y), way.Z});
    const Colour still = Mix(Sky(mirrored), Hex(0x181444), 0.42F);
    // The moon's road: glints that widen towards the eye.
    const float aside = (way.X / way.Z - kMoon.X) / (0.055F + 0.9F / spot.Distance);
    const float glint =
        SmoothStep(0.52F, 0.62F, Noise(p.X * 0.5F, p.Z * 0.16F, 8)) * std::exp(-aside * aside);
    return Mix(still, Hex(0xE8DCEC), glint * 0.6F);
  }
  const float light = 0.10F + 0.12F * spot.Normal.Y + 0.86F * spot.Sun + 0.2F * fine;
  const float high = SmoothStep(70, 105, p.Y + 60 * fine);
  const float flat = 1 - SmoothStep(0.45F, 0.7F, 1 - spot.Normal.Y);
  return Mix(OnRamp(kRock, light), OnRamp(kSnow, light), high * flat);
}

Colour NightRift::Sky(Vec direction) const {
  const float up = Clamp(direction.Y / direction.Z / 0.62F);
  Colour sky =
      Mix(Mix(Hex(0x985880), Hex(0x442C78), up / 0.22F), Hex(0x0C0C34), (up - 0.22F) / 0.75F);
  sky = sky + Hex(0xF4F0FF) * Star(direction) * SmoothStep(0.18F, 0.5F, up);
  const float x = (direction.X / direction.Z - kMoon.X) / kMoonRadius;
  const float y = (direction.Y / direction.Z - kMoon.Y) / kMoonRadius;
  const float from_moon = std::sqrt(x * x + y * y);
  sky = sky + Hex(0x8878B0) * (0.55F * std::exp(-from_moon * 0.62F));
  sky = Mix(MoonColour(x, y), sky, SmoothStep(0.97F, 1.03F, from_moon));
  const float near = std::exp(-from_moon * 0.22F);
  const Colour lit = Mix(Hex(0x8C5884), Hex(0xF8E4E0), near);
  return Clouds(sky, direction, {Hex(0x2C1C54), lit, 0.53F, 0.2F, 0.75F, 83}, Light());
}

Colour NightRift::Haze(Vec direction) const {
  return Mix(Hex(0x785088), Hex(0x403478), Clamp(direction.Y * 3));
}

float NightRift::HazeCover(float distance) const {
  return 0.72F * (1 - std::exp(-std::pow(distance / 700, 1.5F)));
}

Vec NightRift::Light() const {
  return Unit({-0.58F, 0.62F, 0.10F});
}

}  // namespace orvane::paint::scene
