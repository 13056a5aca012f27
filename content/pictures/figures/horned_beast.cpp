// The one-horned maw: a shaggy beast that is mostly mouth.
#include "content/pictures/figures/figures.h"
#include "content/pictures/figures/monster.h"
#include "content/pictures/figures/shadow.h"

namespace orvane::paint {
namespace {

enum Stuff { kFur, kMane, kHorn, kMouth, kTooth, kTongue, kEye, kClaw, kLip };

void AddLeg(Model& model, Vec hip, Vec knee, Vec foot) {
  model.Add(kFur, 3, 3)
      .Limb(hip, knee, 7, 4.6F)
      .Limb(knee, foot, 4.4F, 3.8F)
      .Ball(foot + Vec{0, -1, 1.6F}, {4.4F, 3, 5});
  Group& claws = model.Add(kClaw);
  for (int i = -1; i <= 1; ++i) {
    const float x = static_cast<float>(i) * 2.6F;
    claws.Limb(foot + Vec{x, -1.6F, 5}, foot + Vec{x * 1.2F, -3, 9}, 1.5F, 0.3F);
  }
}

void AddJaws(Model& model) {
  model.Add(kFur, 4, 3).Ball({0, 8, 12}, {12, 8, 12}).Ball({0, 6, 20}, {9.4F, 5.4F, 8});
  model.Add(kFur, 3, 2)
      .Ball({0, -11, 12}, {10.6F, 4.6F, 10})
      .Ball({0, -11.6F, 18}, {8, 3.6F, 6.4F});
  // Dark lips run around the mouth, so that the teeth do not drown in the fur.
  Group& lips = model.Add(kLip, 1.5F, 1);
  for (int i = -4; i < 4; ++i) {
    const auto rim = [](int n, float y, float wide) {
      const float a = static_cast<float>(n) * 0.4F;
      return Vec{std::sin(a) * wide, y, 12.4F + std::cos(a) * (wide + 2.8F)};
    };
    lips.Limb(rim(i, 3.4F, 10.2F), rim(i + 1, 3.4F, 10.2F), 1.9F, 1.9F);
    lips.Limb(rim(i, -9.4F, 8.6F), rim(i + 1, -9.4F, 8.6F), 1.7F, 1.7F);
  }
  model.Add(kMouth, 2).Ball({0, -2, 11}, {10.6F, 9, 11});
  model.Add(kTongue, 1.5F)
      .Chain(
          {{{0, -7, 14}, 4}, {{1, -6.4F, 21}, 3.8F}, {{2, -9, 27}, 3.2F}, {{2.6F, -14, 29}, 1.8F}},
          4);
  Group& teeth = model.Add(kTooth);
  for (int i = -4; i <= 4; ++i) {
    const float a = static_cast<float>(i) * 0.37F;
    const float x = std::sin(a) * 9.4F;
    const float z = 13 + std::cos(a) * 12.6F;
    const float long_tooth = i % 2 == 0 ? 6.4F : 4.0F;
    teeth.Limb({x, 2.4F, z}, {x * 0.98F, 2.4F - long_tooth, z + 0.6F}, 1.8F, 0.3F);
    if (i % 2 != 0) teeth.Limb({x * 0.92F, -8.4F, z - 1.6F}, {x * 0.94F, -3.6F, z - 1}, 1.7F, 0.3F);
  }
}

Model BeastModel() {
  Model model;
  model.Add(kFur, 7, 3)
      .Ball({0, 2, -12}, {13, 13, 15})
      .Ball({0, 2, 0}, {13.5F, 14, 12})
      .Ball({0, 0, -22}, {9, 9, 8});
  AddLeg(model, {-8, -6, 2}, {-12, -14, 6}, {-12, -24, 5});
  AddLeg(model, {8, -6, 4}, {12, -14, 10}, {13, -24, 11});
  AddLeg(model, {-7, -4, -20}, {-11, -13, -17}, {-11, -24, -21});
  AddLeg(model, {7, -4, -20}, {10, -13, -16}, {10, -24, -17});
  AddJaws(model);
  // Tufts at the throat, the shoulders and the haunches.
  Group& tufts = model.Add(kFur, 0.8F, 1.2F);
  for (int i = 0; i < 7; ++i) {
    const float n = static_cast<float>(i);
    tufts.Limb({-11 + std::sin(n * 2), 2 - n * 2, 3 - n * 1.2F}, {-16, -5 - n * 2, -3 - n * 1.4F},
               3, 0.3F);
    tufts.Limb({-10 + std::sin(n * 3), 4 - n * 2, -16 - n}, {-15, -3 - n * 2, -23 - n * 1.2F}, 3,
               0.3F);
    tufts.Limb({n * 2.4F - 7, -9, -4 + n}, {n * 2.6F - 9, -17 - 1.5F * std::sin(n * 2), -6 + n},
               2.6F, 0.3F);
  }
  // The mane stands up along the back.
  Group& mane = model.Add(kMane, 1.2F, 1);
  for (int i = 0; i < 9; ++i) {
    const float n = static_cast<float>(i);
    const float z = 10 - n * 4;
    const float high = 13 + 2 * std::sin(n * 1.9F);
    for (const float x : {-6.0F, 0.0F, 6.0F}) {
      const float low = x == 0 ? 0.0F : -3.0F;
      mane.Limb({x, high + low - 3, z}, {x * 1.5F, high + low + 6, z - 6}, 3.4F, 0.4F);
    }
  }
  mane.Chain({{{0, 2, -28}, 3}, {{-2, 7, -34}, 2.4F}, {{-3, 13, -36}, 3.6F}, {{-3, 19, -35}, 0.4F}},
             4);
  model.Add(kHorn, 1, 0.5F)
      .Chain({{{0, 13, 16}, 3.8F}, {{0, 20, 22}, 3}, {{0, 27, 26}, 1.9F}, {{0, 35, 27.6F}, 0.3F}},
             5);
  model.AddPair(kEye).Ball({6.6F, 11, 19.4F}, {2.6F, 2, 2.2F});
  model.AddPair(kMane, 1, 0.5F).Limb({2.6F, 13, 22}, {10, 15.6F, 16}, 1.7F, 1.2F);
  model.AddPair(kFur, 1, 1).Leaf({10, 12, 6}, {18, 20, 1}, 3.6F, 1.6F, {0, 0, 1});
  model.Finish();
  return model;
}

}  // namespace

Image PaintHornedBeast() {
  std::vector<Material> m(9);
  m[kFur] = {
      {0x1C1430, 0x3C3454, 0x686480, 0x9C9CB0, 0xCCD0D4, 0xF4F4EC}, 0, 0.4F, 0, Strands(2, 0.2F)};
  m[kMane] = {{0x180C24, 0x301C44, 0x543468, 0x845890, 0xB890B8}, 0.1F, 0.4F};
  m[kHorn] = {
      {0x3C1C10, 0x80481C, 0xC88C2C, 0xF0CC58, 0xF8F4C0}, 0.5F, 0.3F, 0, Rings(3.2F, 0.45F)};
  m[kMouth] = {{0x1C040C, 0x50101C, 0x8C202C}};
  m[kTooth] = {{0x847858, 0xE4D8B0, 0xF8F8E8}, 0.2F, 0.1F, 0.2F};
  m[kTongue] = {{0x701838, 0xC0405C, 0xF08890, 0xF8C0B8}, 0.5F};
  m[kEye] = {{0x1C8040, 0x70E850, 0xE8F8A8}, 0.3F, 0, 0.4F};
  m[kClaw] = {{0x30282C, 0x786C60, 0xC8BC9C}, 0.3F};
  m[kLip] = {{0x180C1C, 0x301430, 0x582848, 0x884060}, 0.3F, 0.2F};
  Sprite sprite = Render(BeastModel(), m, MonsterView(0.75F, 0.14F));
  StampAt(sprite, {-6.4F, 11, 21.4F}, {"K", "K"}, "K", {0x0C1408});
  CastShadow(sprite, ShadowUnder(sprite));
  return PairSheet(sprite, 128, 64, 64);
}

}  // namespace orvane::paint
