// The man: brown spiky hair, blue tunic, red scarf and belt.
#include <array>

#include "content/pictures/figures/hero.h"

namespace orvane::paint {
namespace {

void AddLegs(Model& model, float step) {
  for (const float side : {-1.0F, 1.0F}) {
    // At rest the right foot stands a little ahead.
    const float swing = step == 0 ? -0.4F * side : step * side;
    const float lift = step != 0 && swing < 0 ? 2.0F : 0.0F;
    const Vec hip{2.1F * side, -6.5F, 0};
    const Vec foot{2.4F * side, -11.7F + lift, swing * 3.3F};
    const Vec knee = Mix(hip, foot, 0.5F) + Vec{0, 0, step == 0 ? 0.2F : 0.9F};
    model.Add(kTrousers, 0.6F).Limb(hip, knee, 2.4F, 2.1F).Limb(knee, foot, 2.1F, 1.8F);
    model.Add(kBoots, 0.6F)
        .Limb(foot + Vec{0, 0.8F, 0}, foot + Vec{0, 0.2F, 0}, 2.0F, 2.0F)
        .Limb(foot, foot + Vec{0.2F * side, -0.3F, 1.7F}, 1.9F, 1.7F);
  }
}

void AddArms(Model& model, float step) {
  for (const float side : {-1.0F, 1.0F}) {
    const float swing = -step * side * 3.4F;
    const Vec shoulder{4.3F * side, -1.4F, 0};
    const Vec hand{6.2F * side, -6.8F + std::fabs(swing) * 0.3F, swing + 0.4F};
    const Vec elbow = Mix(shoulder, hand, 0.5F) + Vec{0.5F * side, 0, -0.5F};
    model.Add(kCloth, 0.5F).Limb(shoulder, elbow, 2.3F, 2.0F);
    model.Add(kTrim, 0.5F).Limb(elbow, Mix(elbow, hand, 0.55F), 1.9F, 1.9F);
    model.Add(kFace).Ball(hand, {1.7F, 1.7F, 1.7F});
  }
}

void AddHair(Model& model) {
  Group& hair = model.Add(kHair, 0.9F);
  hair.Ball({0, 8.2F, -1.5F}, {6.5F, 4.8F, 6.0F}).Ball({0, 5.8F, -3.0F}, {6.1F, 5.2F, 3.8F});
  struct Spike {
    Vec From;
    Vec To;
  };
  // Up and to the sides, then to the back; the tallest leans to the left hand.
  static constexpr std::array<Spike, 11> kSpikes{{{{-4, 9.5F, 0}, {-7.8F, 13.0F, -0.5F}},
                                                  {{-1, 11, 0.5F}, {-2.8F, 14.4F, 0}},
                                                  {{2.4F, 11, 0}, {4.0F, 14.1F, 0}},
                                                  {{4.6F, 8.8F, -1}, {9.2F, 11.8F, -1.4F}},
                                                  {{-5.2F, 7, -2}, {-9.4F, 9.0F, -2.6F}},
                                                  {{5, 5, -2.5F}, {8.4F, 5.4F, -3.4F}},
                                                  {{-5, 4.2F, -2.5F}, {-8.4F, 4.4F, -3.4F}},
                                                  {{0, 10, -4.5F}, {0.6F, 12.2F, -8.2F}},
                                                  {{-3, 7, -5}, {-4.2F, 8.0F, -9.4F}},
                                                  {{3, 6, -5}, {4.2F, 5.6F, -9.2F}},
                                                  {{0, 3.4F, -5}, {0, 0.8F, -8.2F}}}};
  for (const Spike& spike : kSpikes) hair.Limb(spike.From, spike.To, 2.9F, 0.4F);
  // The fringe, combed to the right hand, and the locks before the ears.
  hair.Limb({4.4F, 10.4F, 2.8F}, {5.0F, 6.6F, 4.4F}, 2.0F, 0.5F);
  hair.Limb({2.2F, 11.0F, 3.8F}, {1.6F, 7.0F, 6.0F}, 2.1F, 0.5F);
  hair.Limb({-0.8F, 11.0F, 4.0F}, {-2.6F, 7.2F, 5.8F}, 2.1F, 0.5F);
  hair.Limb({-3.6F, 10.4F, 3.0F}, {-5.2F, 6.6F, 4.2F}, 2.0F, 0.5F);
  hair.Limb({5.5F, 7.6F, -0.4F}, {5.6F, 3.2F, 0.2F}, 1.4F, 0.5F);
  hair.Limb({-5.5F, 7.6F, -0.4F}, {-5.6F, 3.2F, 0.2F}, 1.4F, 0.5F);
}

}  // namespace

Model ManModel(float step) {
  Model model;
  AddLegs(model, step);
  model.Add(kCloth, 1.2F)
      .Limb({0, -1.6F, 0}, {0, -5.8F, 0}, 3.9F, 3.9F)
      .Limb({-1.9F, -5.4F, 0}, {-2.2F, -6.0F, 0.3F}, 2.7F, 2.6F)
      .Limb({1.9F, -5.4F, 0}, {2.2F, -6.0F, 0.3F}, 2.7F, 2.6F);
  model.Add(kBoots).Ball({0, -5.2F, 0}, {4.4F, 0.9F, 4.2F});
  model.Add(kMetal).Ball({0, -5.2F, 3.7F}, {1.1F, 1.1F, 0.7F});
  AddArms(model, step);
  model.Add(kTrim, 1.2F)
      .Ball({0, -0.2F, 0.3F}, {4.2F, 1.9F, 4.0F})
      .Limb({1.0F, -0.6F, -3.4F}, {1.8F - step * 0.6F, -2.8F, -4.9F}, 1.6F, 1.4F)
      .Limb({1.8F - step * 0.6F, -2.8F, -4.9F}, {2.6F - step * 1.4F, -5.4F, -6.2F}, 1.4F, 0.8F);
  model.Add(kFace, 1)
      .Ball({0, 5.4F, 0.2F}, {5.7F, 5.5F, 5.3F})
      .Ball({0, 3.4F, 1.4F}, {4.4F, 3.2F, 4.4F});
  AddHair(model);
  model.Finish();
  return model;
}

std::vector<Material> ManMaterials() {
  std::vector<Material> m(8);
  m[kFace] = {{0x7C4038, 0xC87C5C, 0xF0B088, 0xFCD8B4}, 0, 0.1F, 0.14F, EvenSkin()};
  m[kHair] = {{0x34180C, 0x5C2E14, 0x904C1C, 0xC07830, 0xE8A858}, 0.25F, 0.2F};
  m[kCloth] = {{0x141C4C, 0x1C3C84, 0x2C64B4, 0x58A0DC, 0xA0D8F4}, 0, 0.2F};
  m[kTrousers] = {{0x282438, 0x443C54, 0x6C647C, 0x9C94A4}, 0, 0.1F};
  m[kBoots] = {{0x2C1810, 0x5C3418, 0x8C5828, 0xC08844}, 0.2F, 0.1F};
  m[kTrim] = {{0x5C0C18, 0xA01C24, 0xD84030, 0xF88058}, 0, 0.15F};
  m[kMetal] = {{0xA07010, 0xF4DC60, 0xF8F0B0}, 0.4F, 0.1F, 0.1F};
  m[kLining] = m[kTrim];
  return m;
}

}  // namespace orvane::paint
