#include "content/pictures/scenes/hall.h"

#include <algorithm>

#include "content/pictures/scenes/colour.h"
#include "content/pictures/scenes/noise.h"

namespace orvane::paint::scene {
namespace {

constexpr float kPillarSide = 37;
constexpr float kPillarGap = 38;
constexpr float kFirstPillar = 64;
constexpr float kLastPillar = 4;  // the number of the last pair

float Box(Vec p, Vec half) {
  const Vec q{std::fabs(p.X) - half.X, std::fabs(p.Y) - half.Y, std::fabs(p.Z) - half.Z};
  const Vec out{std::max(q.X, 0.0F), std::max(q.Y, 0.0F), std::max(q.Z, 0.0F)};
  return Length(out) + std::min(std::max(q.X, std::max(q.Y, q.Z)), 0.0F);
}

// A fluted shaft between square stones; some shafts are broken off.
float Pillar(Vec p) {
  const float number = std::clamp(std::round((p.Z - kFirstPillar) / kPillarGap), 0.0F, kLastPillar);
  const int side = p.X < 0 ? 0 : 1;
  const int seed = static_cast<int>(number) * 2 + side;
  const Vec q{std::fabs(p.X) - kPillarSide, p.Y, p.Z - kFirstPillar - number * kPillarGap};
  const float round = std::sqrt(q.X * q.X + q.Z * q.Z);
  const float angle = std::atan2(q.Z, q.X);
  const float flute = 0.16F * std::fabs(std::sin(angle * 7));
  const float swell = 4.6F - 0.012F * q.Y;
  float shaft = round - swell + flute;
  const bool broken = Hash(seed, 4, 3) < 0.2F;
  if (broken) {
    const float top = 22 + 16 * Hash(seed, 5, 3) + 4 * Noise(q.X * 0.5F, q.Z * 0.5F, seed);
    shaft = std::max(shaft, q.Y - top);
  }
  const float base = std::min(Box({q.X, q.Y - 1.4F, q.Z}, {6.4F, 1.4F, 6.4F}),
                              std::max(round - 5.7F, std::fabs(q.Y - 3.6F) - 0.9F));
  const float ring = std::max(round - 5.2F, std::fabs(q.Y - 15) - 0.7F);
  const float cap = broken ? 99 : Box({q.X, q.Y - 66, q.Z}, {7, 3, 7});
  return std::min(std::min(shaft, ring), std::min(base, cap)) * 0.85F;
}

// Walls and vault, hewn out of the living rock.
float Rock(Vec p) {
  const float rough = 7 * (Fbm(p.Y * 0.06F + p.X * 0.05F, p.Z * 0.06F, 4, 11) - 0.5F) +
                      2.2F * (Ridges(p.Y * 0.13F, p.Z * 0.13F + p.X * 0.1F, 2, 12) - 0.4F);
  const float wall = 62 - std::fabs(p.X) + rough;
  // Dripstones hang from the vault.
  const float drip = Noise(p.X * 0.16F, p.Z * 0.13F, 13);
  const float spikes = 30 * SmoothStep(0.62F, 1, drip);
  const float vault = 84 - p.Y - 0.010F * p.X * p.X + rough - spikes;
  return std::min(wall, vault) * 0.6F;
}

float Crystal(Vec p) {
  float nearest = 99;
  for (const float depth : kCrystalDepths) {
    const Vec q{std::fabs(p.X) - kCrystalSide, p.Y, p.Z - depth};
    if (Length(q) > 30) {
      nearest = std::min(nearest, Length(q) - 24);
      continue;
    }
    const int side = p.X < 0 ? 7 : 0;
    for (int k = 0; k < 6; ++k) {
      const int seed = k + side + static_cast<int>(depth);
      const float lean_x = (Hash(seed, 1, 21) - 0.6F) * 0.9F;
      const float lean_z = (Hash(seed, 2, 21) - 0.5F) * 0.9F;
      const float tall = 4 + 8 * Hash(seed, 3, 21) * (k == 0 ? 1.5F : 0.8F);
      const Vec local{q.X - (Hash(seed, 4, 21) - 0.5F) * 8 - lean_x * q.Y, q.Y,
                      q.Z - (Hash(seed, 5, 21) - 0.5F) * 8 - lean_z * q.Y};
      const float six =
          std::max(std::fabs(local.X), std::fabs(local.X) * 0.5F + std::fabs(local.Z) * 0.87F);
      const float thick = 1.1F + 0.9F * Hash(seed, 6, 21);
      const float prism = std::max(six - thick, six * 1.9F + local.Y - tall);
      nearest = std::min(nearest, std::max(prism, -local.Y) * 0.55F);
    }
  }
  return nearest;
}

}  // namespace

Solid HallAt(Vec place) {
  Solid best{place.Y, Stuff::Floor};
  const auto offer = [&](float distance, Stuff stuff) {
    if (distance < best.Distance) best = {distance, stuff};
  };
  offer(Pillar(place), Stuff::Pillar);
  offer(Rock(place), Stuff::Rock);
  offer(Crystal(place), Stuff::Crystal);
  // Five steps lead to the gate, a wall with a ring around the disc.
  for (int step = 0; step < 5; ++step) {
    const float up = 1.6F * static_cast<float>(step);
    const Vec middle{0, up * 0.5F, 236 + 5 * static_cast<float>(step) + 40};
    offer(Box(place - middle, {30 - 1.5F * static_cast<float>(step), up * 0.5F + 0.8F, 40}),
          Stuff::Gate);
  }
  const Vec from_disc = place - kDiscCentre;
  const float round = std::sqrt(from_disc.X * from_disc.X + from_disc.Y * from_disc.Y);
  const float wall = std::max(kDiscCentre.Z + 2 - place.Z, kDiscRadius - round);
  offer(wall * 0.9F, Stuff::Rock);
  const float ring =
      std::max(std::fabs(round - kDiscRadius - 2.4F) - 2.4F, std::fabs(from_disc.Z) - 2.5F);
  offer(ring, Stuff::Gate);
  offer(kDiscCentre.Z + 3 - place.Z, Stuff::Disc);
  return best;
}

}  // namespace orvane::paint::scene
