#include "content/pictures/panels/icon_frame.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "content/pictures/scenes/noise.h"
#include "content/pictures/shared/vec.h"

namespace orvane::paint::panel {
namespace {

using scene::Colour;
using scene::Hex;
using scene::Mix;

constexpr float kSide = 64;
constexpr float kWidth = 4.6F;
constexpr float kBoss = 4.3F;      // where a corner's boss stands, from both edges
constexpr float kBossSize = 4.3F;  // its radius

constexpr std::array<uint32_t, 6> kGold{0x2C140C, 0x6C3C14, 0xA86C20, 0xDCA83C, 0xF8DC74, 0xFFFCDC};

float FromEdge(float x, float y) {
  return std::min(std::min(x, y), std::min(kSide - x, kSide - y));
}

// The nearest corner's boss: how far off, 1 on its rim.
float FromBoss(float x, float y) {
  return std::hypot(std::min(x, kSide - x) - kBoss, std::min(y, kSide - y) - kBoss) / kBossSize;
}

// Two rolls with a beaded groove between them, and bosses on the corners.
float Height(float x, float y) {
  const float off = FromBoss(x, y);
  if (off < 1) {
    const float rim = std::exp(-std::pow((off - 0.82F) / 0.12F, 2.0F));
    return 1.6F + 2.2F * std::sqrt(1 - off * off) * (off < 0.62F ? 1 : 0.2F) + 0.7F * rim;
  }
  const float edge = FromEdge(x, y);
  const auto roll = [&](float middle, float half) {
    const float t = (edge - middle) / half;
    return std::sqrt(std::max(0.0F, 1 - t * t)) * half;
  };
  const bool upright = std::min(x, kSide - x) < std::min(y, kSide - y);
  const float along = (upright ? y : x) / 1.6F;
  const float bead_along = 2 * (along - std::floor(along)) - 1;
  const float bead_across = (edge - 2.5F) / 0.62F;
  const float bead =
      0.6F * std::sqrt(std::max(0.0F, 1 - bead_along * bead_along - bead_across * bead_across));
  return std::max({roll(1.2F, 0.85F), roll(3.8F, 0.85F), bead});
}

Colour Gilt(float x, float y) {
  constexpr float step = 0.12F;
  const Vec normal = Unit({Height(x - step, y) - Height(x + step, y),
                           Height(x, y - step) - Height(x, y + step), 2 * step});
  const Vec light = Unit({-0.52F, -0.66F, 0.62F});
  const float facing = Dot(normal, light);
  const float worn = scene::Fbm(x * 0.45F, y * 0.45F, 3, 81) - 0.5F;
  const float tone = 0.10F + 0.62F * Clamp(0.45F + 0.55F * facing) + 0.16F * worn +
                     0.34F * std::pow(Clamp(facing), 10.0F);
  Colour colour = scene::OnRamp(kGold, tone);
  const float off = FromBoss(x, y);
  if (off < 0.62F) {
    // A garnet in the boss.
    constexpr std::array<uint32_t, 5> garnet{0x280414, 0x6C0C24, 0xB82038, 0xF06070, 0xFFE8E0};
    const float dx = (std::min(x, kSide - x) - kBoss) * (x < kSide / 2 ? 1.0F : -1.0F) / kBossSize;
    const float dy = (std::min(y, kSide - y) - kBoss) * (y < kSide / 2 ? 1.0F : -1.0F) / kBossSize;
    const float spot = std::hypot(dx + 0.20F, dy + 0.24F);
    const float glow = 0.34F + 0.34F * (dx + dy) + 0.9F * std::exp(-spot * spot * 46) -
                       0.3F * SmoothStep(0.42F, 0.62F, off);
    colour = scene::OnRamp(garnet, glow);
  }
  return Mix(colour, Hex(kGold[0]), 0.8F * std::exp(-std::pow((off - 0.65F) / 0.07F, 2.0F)));
}

}  // namespace

Colour IconFramed(Colour inside, float x, float y) {
  const float edge = FromEdge(x, y);
  const float off = FromBoss(x, y);
  if (edge < 0.36F && off > 1) return Hex(0x180C10);
  if (edge < kWidth || off < 1) {
    const float seam = std::min(std::max(kWidth - edge, (1 - off) * kBossSize), edge - 0.2F);
    return Mix(Hex(0x180C10), Gilt(x, y), SmoothStep(0.0F, 0.5F, seam));
  }
  // The frame's shadow falls to the right and downward.
  const float lit = FromEdge(x - 1.6F, y - 1.6F);
  const float shadow = std::max(1 - SmoothStep(kWidth - 0.6F, kWidth + 2.4F, std::min(lit, edge)),
                                1 - SmoothStep(0.9F, 1.5F, FromBoss(x - 1, y - 1)));
  return Mix(inside, Hex(0x140610), 0.72F * shadow);
}

}  // namespace orvane::paint::panel
