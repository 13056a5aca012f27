// The man-eating plant: a trap of a blossom on a bent stem, between its leaves.
#include <array>

#include "content/pictures/figures/figures.h"
#include "content/pictures/figures/monster.h"
#include "content/pictures/figures/shadow.h"

namespace orvane::paint {
namespace {

enum Stuff { kStem, kLeaf, kPetal, kJaw, kMouth, kTooth, kTongue };

float SpotLight(Touch& touch, float light) {
  return Noise(touch.At * 0.34F + Vec{3, 7, 1}) > 0.62F ? light * 0.55F : light;
}

void AddLeaves(Model& model) {
  struct Blade {
    float Angle;
    float Reach;
    float Lift;
  };
  static constexpr std::array<Blade, 7> kBlades{{{0.3F, 24, 7},
                                                 {1.2F, 22, -1},
                                                 {2.1F, 23, 2},
                                                 {2.9F, 26, 9},
                                                 {3.7F, 24, 4},
                                                 {4.7F, 18, 8},
                                                 {5.6F, 22, 10}}};
  for (const auto& [angle, reach, lift] : kBlades) {
    const Vec root = Around(angle, 3, -25, 3);
    const Vec bend = Around(angle, reach * 0.62F, -22 + lift, reach * 0.55F);
    const Vec tip = Around(angle, reach, -27 + lift * 0.3F, reach * 0.85F);
    model.Add(kLeaf, 2)
        .Leaf(root, bend + (bend - root) * 0.2F, 5.6F, 1.3F, {0, 1, 0})
        .Leaf(bend - (tip - bend) * 0.3F, tip, 4.8F, 1.1F, {0, 1, 0});
  }
}

void AddHead(Model& model) {
  model.Enter({{0, 12, 3}, 0.1F, -0.12F, 0, 1});
  // A ruff of petals behind the jaws.
  for (int i = 0; i < 9; ++i) {
    const float a = static_cast<float>(i) * 0.698F + 0.2F;
    const Vec out{std::cos(a), std::sin(a), 0};
    model.Add(kPetal, 1).Leaf(out * 5 + Vec{0, 0, -3}, out * 18.5F + Vec{0, 0, -6.5F}, 4.6F, 1.4F,
                              {0.01F, 0, 1});
  }
  model.Add(kJaw, 3, 0).Ball({0, 5.4F, 3}, {11, 7.6F, 11.5F}).Ball({0, 4.6F, 10}, {7, 4.6F, 6.6F});
  model.Add(kJaw, 3, 0).Ball({0, -8.2F, 2}, {9.6F, 4.4F, 10}).Ball({0, -9.4F, 8}, {6, 3.2F, 5.6F});
  model.Add(kMouth, 2).Ball({0, -1.6F, 2.6F}, {9.4F, 5.4F, 9.6F});
  model.Add(kTongue, 1)
      .Chain(
          {{{0, -4, 9}, 3}, {{0.6F, -4.4F, 15}, 2.6F}, {{1.4F, -7, 19}, 2.2F}, {{2, -11, 20}, 1}},
          3);
  Group& teeth = model.Add(kTooth);
  for (int i = -4; i <= 4; ++i) {
    const float a = static_cast<float>(i) * 0.36F;
    const float x = std::sin(a);
    const float z = std::cos(a);
    teeth.Limb({x * 9.4F, 1.8F, 2 + z * 12.4F}, {x * 9.2F, -3.6F, 2.4F + z * 12.6F}, 1.5F, 0.3F);
    if (i % 2 == 0) continue;
    teeth.Limb({x * 8.6F, -7, 1 + z * 11}, {x * 8.8F, -2.6F, 1.2F + z * 11.4F}, 1.5F, 0.3F);
  }
  model.Leave();
}

Model PlantModel() {
  Model model;
  AddLeaves(model);
  model.Add(kStem, 1.5F, 1)
      .Chain({{{0, -27, 0}, 4.4F},
              {{-1, -18, -5}, 3.8F},
              {{0, -6, -9}, 3.4F},
              {{0, 5, -7}, 3.6F},
              {{0, 11, -1}, 4.4F}},
             5);
  Group& thorns = model.Add(kTooth);
  thorns.Limb({-3, -20, -4}, {-7, -18, -5}, 1.4F, 0.2F)
      .Limb({3, -13, -7}, {7, -11, -9}, 1.4F, 0.2F);
  thorns.Limb({-2.6F, -8, -9}, {-6.6F, -5, -11}, 1.4F, 0.2F);
  // Two tendrils that grope ahead.
  model.Add(kStem, 0.8F, 1)
      .Chain({{{-2, -14, -5}, 2},
              {{-13, -8, 2}, 1.7F},
              {{-18, -13, 10}, 1.4F},
              {{-14, -15, 15}, 1.1F},
              {{-12, -11, 13}, 0.7F}},
             4)
      .Chain({{{2, -10, -7}, 2},
              {{14, -2, -2}, 1.7F},
              {{20, -8, 4}, 1.4F},
              {{17, -12, 8}, 1.1F},
              {{14, -9, 8}, 0.7F}},
             4);
  AddHead(model);
  model.Finish();
  return model;
}

}  // namespace

Image PaintManEater() {
  std::vector<Material> m(7);
  m[kStem] = {{0x18281C, 0x284820, 0x447028, 0x70A038, 0xA8CC60}, 0.2F, 0.3F, 0, Rings(3.4F, 0.2F)};
  m[kLeaf] = {{0x181840, 0x2C3068, 0x485494, 0x7C8CC0, 0xC0D0E8}, 0.2F, 0.3F};
  m[kPetal] = {{0x481038, 0x841C54, 0xC43470, 0xEC6C98, 0xF8B0C0}, 0.1F, 0.3F};
  m[kJaw] = {
      {0x2C1838, 0x542458, 0x8C3878, 0xC0609C, 0xE49CC0, 0xF8D8E0}, 0.35F, 0.3F, 0, SpotLight};
  m[kMouth] = {{0x20040C, 0x580C1C, 0x901C28}};
  m[kTooth] = {{0x8C7C50, 0xE4D8A0, 0xF8F8E0}, 0.1F, 0.1F, 0.2F};
  m[kTongue] = {{0x74102C, 0xC83848, 0xF08078}, 0.5F};
  Sprite sprite = Render(PlantModel(), m, MonsterView(0.62F, 0.14F));
  CastShadow(sprite, ShadowUnder(sprite));
  return PairSheet(sprite, 128, 64, 64);
}

}  // namespace orvane::paint
