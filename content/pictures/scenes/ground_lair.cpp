// The last dragon's lair: a hall of pillars under the rock, lit by a disc of light and by crystals.
#include <algorithm>
#include <array>

#include "content/pictures/scenes/canvas.h"
#include "content/pictures/scenes/hall_light.h"
#include "content/pictures/scenes/noise.h"
#include "content/pictures/scenes/scenes.h"
#include "content/pictures/scenes/terrain.h"

namespace orvane::paint::scene {
namespace {

constexpr std::array<uint32_t, 6> kSlate{0x140C28, 0x282048, 0x40386C,
                                         0x645C94, 0x9890B8, 0xD8D0DC};
constexpr std::array<uint32_t, 6> kMarble{0x181030, 0x342850, 0x5C4874,
                                          0x8C7898, 0xC4B0B8, 0xF4E8D4};
constexpr std::array<uint32_t, 6> kGold{0x2C1830, 0x603840, 0xA06C40, 0xD8A850, 0xF8E090, 0xFFFCE0};
constexpr std::array<uint32_t, 5> kCrystal{0x106080, 0x18A0B0, 0x40DCD0, 0xA8F8E8, 0xFFFFFF};
constexpr std::array<uint32_t, 6> kRadiance{0x184878, 0x2088A0, 0x58C8B8,
                                            0xC8E8A0, 0xFCF0B0, 0xFFFFF0};
constexpr Vec kKey{-0.55F, 0.78F, -0.3F};

// The disc: rings and rays that brighten towards the middle.
Colour DiscColour(Vec p) {
  const float x = p.X - kDiscCentre.X;
  const float y = p.Y - kDiscCentre.Y;
  const float radius = std::sqrt(x * x + y * y) / kDiscRadius;
  const float angle = std::atan2(y, x);
  const float rays = 0.13F * std::sin(angle * 16) * SmoothStep(0.42F, 0.55F, radius);
  const float rings = radius > 0.4F ? 0.11F * std::cos(radius * 34) : 0.0F;
  return OnRamp(kRadiance, 1.02F - 0.95F * SmoothStep(0.05F, 1.0F, radius) + rays + rings);
}

float SlabTone(Vec p) {
  const float row = std::floor(p.Z / 9);
  const float shift = static_cast<int>(row) % 2 == 0 ? 0.0F : 5.0F;
  const float column = std::floor((p.X + shift) / 10);
  const float in_x = (p.X + shift) - column * 10;
  const float in_z = p.Z - row * 9;
  const float edge = std::min(std::min(in_x, 10 - in_x), std::min(in_z, 9 - in_z));
  const float slab = Hash(static_cast<int>(column), static_cast<int>(row), 5) - 0.5F;
  const float worn = Fbm(p.X * 0.11F, p.Z * 0.11F, 4, 6) - 0.5F;
  const float wide = 0.10F + p.Z * 0.002F;
  const float seam = SmoothStep(wide + 0.14F, wide * 0.4F, edge) * SmoothStep(190, 60, p.Z);
  return 0.07F * slab + 0.22F * worn - 0.17F * seam;
}

// Where the shafts from above reach the floor.
float Pool(Vec p) {
  const float x = (p.X + 12) / 22;
  const float z = (p.Z - 62) / 34;
  const float other_x = (p.X - 17) / 10;
  const float other_z = (p.Z - 40) / 13;
  return std::exp(-x * x - z * z) + 0.7F * std::exp(-other_x * other_x - other_z * other_z);
}

// A ring of signs in the floor's middle, faintly alight.
float SignLight(Vec p) {
  const float x = p.X + 4;
  const float z = p.Z - 66;
  const float radius = std::sqrt(x * x + z * z);
  const auto band = [&](float at, float half) {
    return SmoothStep(half + 0.16F, half, std::fabs(radius - at));
  };
  const float angle = std::atan2(z, x) * 36 / 6.2831853F;
  const float sector = angle - std::floor(angle);
  const int sign = static_cast<int>(std::floor(angle)) + 40;
  const float stroke = SmoothStep(0.30F, 0.22F, std::fabs(sector - 0.5F)) *
                       (Hash(sign, static_cast<int>(radius * 1.4F), 8) > 0.45F ? 1.0F : 0.0F);
  return std::max(std::max(band(27, 0.22F), band(22, 0.18F)), 0.8F * stroke * band(24.5F, 1.6F));
}

Colour Surface(const Hit& hit, Vec direction) {
  if (hit.stuff == Stuff::Disc) return DiscColour(hit.Place);
  const Vec normal = NormalAt(hit.Place, 0.05F + hit.Distance * 0.001F);
  const Vec lamp = Unit(kKey);
  const float facing = Clamp(Dot(normal, lamp) * 0.75F + 0.25F);
  const float shadow = facing > 0 ? Shadow(hit.Place + normal * 0.2F, lamp) : 0;
  const float open = Openness(hit.Place, normal);
  const float gate = Glow(hit.Place, normal, kDiscCentre + Vec{0, 0, -22}, 2600);
  const float rim = std::pow(Clamp(1 + Dot(normal, direction)), 3.0F) * 0.18F;
  float light =
      0.02F + 0.10F * open + 0.62F * facing * facing * (0.3F + 0.7F * shadow) * open + rim;
  Colour colour;
  const Vec p = hit.Place;
  switch (hit.stuff) {
    case Stuff::Floor:
      light = 0.05F + 0.18F * open + 0.20F * shadow + SlabTone(p) + 0.16F * Pool(p);
      colour = OnRamp(kSlate, light);
      break;
    case Stuff::Pillar: {
      const float vein = Fbm(p.X * 0.2F + p.Y * 0.05F, p.Y * 0.11F + p.Z * 0.2F, 4, 7) - 0.5F;
      colour = OnRamp(kMarble, light * 1.12F + 0.24F * vein);
      // Bands of old gilding run round the shafts.
      if (std::fabs(p.Y - 15) < 0.9F || std::fabs(p.Y - 3.6F) < 0.8F) {
        colour = OnRamp(kGold, light * 1.2F + 0.2F * vein);
      }
      break;
    }
    case Stuff::Gate:
      colour = OnRamp(kGold, light * 1.1F + std::min(gate, 1.2F) * 0.3F);
      break;
    case Stuff::Crystal: {
      const float face = 0.30F + 0.45F * Clamp(Dot(normal, lamp)) + rim * 1.6F + 0.02F * p.Y;
      return OnRamp(kCrystal, face);
    }
    default: {
      const float grain = Fbm(p.Y * 0.15F + p.X * 0.1F, p.Z * 0.15F, 4, 9) - 0.5F;
      colour = OnRamp(kSlate, light * 0.62F + 0.20F * grain);
    }
  }
  colour = colour + Hex(0xFFD898) * (std::min(gate, 1.0F) * 0.22F * open);
  for (const float depth : kCrystalDepths) {
    for (const float side : {-kCrystalSide, kCrystalSide}) {
      const float glow = Glow(p, normal, {side, 7, depth - 4}, 150);
      colour = colour + Hex(0x30E0D0) * (std::min(glow, 0.9F) * 0.6F * open);
    }
  }
  if (hit.stuff == Stuff::Floor) colour = Mix(colour, Hex(0x70E8E0), SignLight(p) * 0.34F);
  return colour;
}

Colour Veiled(Colour colour, float distance) {
  const float cover = 1 - std::exp(-std::pow(distance / 330, 1.7F));
  return Mix(colour, Hex(0x38447C), cover * 0.75F);
}

Colour Look(Vec from, Vec direction) {
  const Hit hit = March(from, direction, 150);
  Colour colour = Surface(hit, direction);
  if (hit.stuff == Stuff::Floor) {
    // Polished stone mirrors the hall, more so at a flat angle.
    const Vec up{0, 1, 0};
    const float ripple = 0.035F * (Noise(hit.Place.X * 0.5F, hit.Place.Z * 0.5F, 15) - 0.5F);
    const float lengthened = 1 + 0.9F * ripple * std::fabs(direction.Y) * 20;
    const Vec mirrored =
        Unit({direction.X + ripple, -direction.Y * lengthened, direction.Z + ripple});
    const Hit other = March(hit.Place + up * 0.05F, mirrored, 80);
    const float flat = std::pow(Clamp(1 + direction.Y), 5.0F);
    const Colour seen = Surface(other, mirrored);
    if (other.stuff == Stuff::Disc) {
      // The disc's own light is added, with the stone's seams and wear in it.
      const float polish = 0.30F + 0.9F * SlabTone(hit.Place);
      const Colour warm{seen.R, seen.G * 0.94F, seen.B * 0.72F};
      colour = Mix(colour, seen, 0.18F) + warm * (Clamp(polish, 0.06F, 0.5F) * 0.5F);
    } else {
      colour = Mix(colour, Veiled(seen, other.Distance), 0.06F + 0.34F * flat);
    }
  }
  if (hit.stuff != Stuff::Disc) colour = Veiled(colour, hit.Distance);
  return colour;
}

// Air that glows around the disc, and shafts that fall from the upper left.
Colour Air(const View& view, int x, int y) {
  const float column = static_cast<float>(x);
  const float row = static_cast<float>(y);
  const float off_x = column - view.ColumnOf(kDiscCentre.X, kDiscCentre.Z);
  const float off_y = row - view.RowOf(kDiscCentre.Y, kDiscCentre.Z);
  const float size = kDiscRadius / kDiscCentre.Z * view.Focal;
  const float near = std::exp(-(off_x * off_x + off_y * off_y) / (size * size * 6));
  const float slanted = (column + row * 0.55F) / static_cast<float>(view.Width);
  const float beam = SmoothStep(0.56F, 0.78F, Fbm(slanted * 7, 0.5F, 3, 17));
  const float fade = SmoothStep(0.62F, 0.05F, row / static_cast<float>(view.Height));
  return Hex(0x98B8B0) * (near * 0.2F) + Hex(0xB8B0D8) * (beam * fade * 0.3F);
}

}  // namespace

Image PaintGroundLair() {
  const View view{960, 576, 220, 660};
  Canvas canvas(view.Width, view.Height);
  for (int y = 0; y < view.Height; ++y) {
    for (int x = 0; x < view.Width; ++x) {
      canvas.At(x, y) = Look({0, view.Eye, 0}, Unit(view.Through(x, y))) + Air(view, x, y);
    }
  }
  return ToSheet(Painted(Shrink(canvas, 2, 2), 2, 0.7F), 240, 5);
}

}  // namespace orvane::paint::scene
