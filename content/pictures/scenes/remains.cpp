#include "content/pictures/scenes/remains.h"

#include <algorithm>
#include <array>
#include <vector>

#include "content/pictures/scenes/noise.h"

namespace orvane::paint::scene {
namespace {

constexpr std::array<uint32_t, 5> kBone{0x4C3C48, 0x847070, 0xBCA890, 0xE4D8B8, 0xFCF8E4};
constexpr std::array<uint32_t, 2> kHollow{0x2C1C2C, 0x50383C};
constexpr std::array<uint32_t, 4> kWood{0x241C2C, 0x44343C, 0x6C5450, 0xA08470};
constexpr Colour kShadow = Hex(0x443040);

}  // namespace

void DrawSkeleton(Dresser& dresser) {
  constexpr float z = 116;
  constexpr float start = 9;
  const auto spine_height = [](float along) {
    return 16.5F - 0.022F * (along - 17) * (along - 17);
  };
  const auto ribs = [&](float depth) {
    for (int rib = 0; rib < 7; ++rib) {
      const auto number = static_cast<float>(rib);
      const float along = 4 + number * 5.2F;
      const float tall = spine_height(along);
      const float length =
          1 - 0.10F * std::fabs(number - 2.5F) - 0.16F * Hash(rib, depth < 0 ? 1 : 0, 70);
      std::vector<Joint> joints;
      for (int k = 0; k <= 12; ++k) {
        const float t = static_cast<float>(k) / 12 * length;
        const float bow = std::sin(t * 3.0F);
        joints.push_back(
            {{start + along - 3.4F * bow + 1.6F * t,
              tall - (tall + 1) * t * t * 0.25F - (tall + 1) * t * 0.75F, z + depth * bow},
             (1.05F - 0.55F * t) * (0.82F + 0.3F * Hash(rib, 2, 70))});
      }
      dresser.Limb(joints, kBone);
    }
  };
  dresser.Shade(start + 24, z, 30, 13, kShadow);
  dresser.Shade(-3, z - 10, 13, 4, kShadow);
  ribs(8);
  std::vector<Joint> spine;
  for (int k = 0; k <= 30; ++k) {
    const float along = static_cast<float>(k) * 1.55F;
    const float thick = k % 2 == 0 ? 1.75F : 1.05F;
    spine.push_back(
        {{start + along, spine_height(along), z}, std::max(0.35F, thick * (1 - 0.016F * along))});
  }
  dresser.Limb(spine, kBone);
  // Thorns of the spine.
  for (int k = 1; k < 11; ++k) {
    const float along = static_cast<float>(k) * 3.1F;
    const Vec root{start + along, spine_height(along) + 1, z};
    const std::array<Joint, 2> thorn{
        {{root, 0.8F}, {root + Vec{1.4F, 2.6F - 0.12F * static_cast<float>(k), 0}, 0.15F}}};
    dresser.Limb(thorn, kBone);
  }
  ribs(-7);
  // The skull lies before the ribs: cranium, muzzle, jaw, horns, and the hollow of the eye.
  const Vec skull{-5, 3.2F, z - 10};
  const auto part = [&](Vec from, Vec to, float radius_from, float radius_to, RampView tones) {
    const std::array<Joint, 2> joints{{{skull + from, radius_from}, {skull + to, radius_to}}};
    dresser.Limb(joints, tones);
  };
  part({2.4F, 2, 0}, {7, 5.6F, 0}, 0.9F, 0.7F, kBone);
  part({7, 5.6F, 0}, {11.5F, 5.6F, 0}, 0.7F, 0.15F, kBone);
  part({1.6F, -2.2F, 0}, {-8.4F, -3.4F, 0}, 1.1F, 0.8F, kBone);
  part({0, 0, 0}, {2, 0.6F, 0}, 3.2F, 2.4F, kBone);
  part({-1, -0.2F, 0}, {-8.8F, -1.4F, 0}, 2.5F, 1.3F, kBone);
  for (int tooth = 0; tooth < 5; ++tooth) {
    const float x = -3.4F - 1.3F * static_cast<float>(tooth);
    part({x, -1.9F, -0.4F}, {x - 0.1F, -3.4F, -0.4F}, 0.5F, 0.15F, kBone);
  }
  part({-0.9F, 0.7F, -0.5F}, {-0.2F, 0.9F, -0.5F}, 0.95F, 0.85F, kHollow);
  part({-8.2F, -0.7F, -0.5F}, {-7.7F, -0.5F, -0.5F}, 0.4F, 0.35F, kHollow);
}

void DrawDeadTree(Dresser& dresser, float x, float z, float size, int seed) {
  dresser.Shade(x + 1, z, 2.6F * size, 1.3F * size, kShadow);
  const auto bough = [&](Vec from, float lean, float length, float radius, int chance) {
    std::vector<Joint> joints;
    for (int k = 0; k <= 6; ++k) {
      const float t = static_cast<float>(k) / 6;
      const float bend = (Hash(k, chance, seed) - 0.5F) * 0.18F * length;
      joints.push_back({{from.X + lean * length * t * (0.6F + 0.5F * t) + bend * t,
                         from.Y + length * t * (1 - 0.25F * t * std::fabs(lean)), z},
                        radius * (1 - 0.8F * t)});
    }
    dresser.Limb(joints, kWood);
    return joints[4].Place;
  };
  const Vec fork = bough({x, -0.5F, z}, 0.15F, 6 * size, 0.55F * size, 1);
  bough(fork, -0.9F, 3.6F * size, 0.28F * size, 2);
  bough(fork, 0.8F, 3.2F * size, 0.3F * size, 3);
  bough({fork.X - 0.2F * size, fork.Y - 1.3F * size, z}, 1.2F, 2.6F * size, 0.22F * size, 4);
  bough({fork.X - 0.3F * size, fork.Y - 1.9F * size, z}, -1.3F, 2.2F * size, 0.2F * size, 5);
}

}  // namespace orvane::paint::scene
