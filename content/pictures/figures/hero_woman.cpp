// The woman: blond hair tied with a bow, rose dress under a white mantle.
#include <array>

#include "content/pictures/figures/hero.h"

namespace orvane::paint {
namespace {

void AddDress(Model& model, float step) {
  for (const float side : {-1.0F, 1.0F}) {
    // At rest the right foot stands a little ahead.
    const float swing = step == 0 ? -0.5F * side : step * side;
    const float lift = step != 0 && swing < 0 ? 2.0F : 0.0F;
    const Vec knee{1.6F * side, -8.0F, swing * 1.4F};
    const Vec foot{2.0F * side, -11.8F + lift, swing * 4.3F};
    model.Add(kLining, 0.5F).Limb(knee, foot, 1.7F, 1.5F);
    model.Add(kBoots, 0.6F)
        .Limb(foot + Vec{0, 1.2F, 0}, foot, 1.9F, 1.8F)
        .Limb(foot, foot + Vec{0, -0.2F, 1.6F}, 1.7F, 1.5F);
  }
  // A narrow waist; the skirt spreads, and its hem, at the knee, swings after the feet.
  Group& dress = model.Add(kCloth, 1.2F);
  dress.Limb({0, -1.4F, 0}, {0, -4.4F, 0}, 3.2F, 2.1F);
  dress.Limb({0, -4.8F, 0}, {0.3F * step, -7.0F, -0.4F}, 2.1F, 4.0F);
  for (const float side : {-1.0F, 1.0F}) {
    const float swing = step * side;
    dress.Limb({1.0F * side, -5.6F, 0}, {2.4F * side, -7.4F, swing * 1.6F}, 2.0F, 2.8F);
  }
  // White lace below the hem.
  model.Add(kLining, 1).Ball({0.3F * step, -9.0F, 0}, {4.9F, 1.2F, 4.3F});
  model.Add(kMetal).Ball({0, -4.5F, 0}, {2.7F, 0.8F, 2.6F});
}

// Puffed sleeves to the elbow, bare arms from there on.
void AddArms(Model& model, float step) {
  for (const float side : {-1.0F, 1.0F}) {
    const float swing = -step * side * 2.6F;
    const Vec shoulder{3.7F * side, -1.2F, 0};
    const Vec elbow{5.6F * side, -4.2F, -0.9F + swing * 0.5F};
    const Vec hand{5.0F * side, -6.0F, 2.2F + swing};
    model.Add(kLining, 0.5F).Limb(shoulder, Mix(shoulder, elbow, 0.8F), 1.9F, 2.3F);
    model.Add(kFace, 0.5F).Limb(elbow, hand, 1.4F, 1.3F);
  }
}

void AddHair(Model& model, float step) {
  Group& hair = model.Add(kHair, 1.0F);
  hair.Ball({0, 8.0F, -1.3F}, {6.3F, 4.8F, 6.0F}).Ball({0, 6.0F, -3.0F}, {6.0F, 4.6F, 3.6F});
  // Tied high at her left: the tail shows from every side, and swings against the step.
  model.Add(kHair, 0.8F)
      .Chain({{{4.8F, 9.0F, -3.6F}, 1.8F},
              {{6.8F, 6.6F, -4.6F}, 2.1F},
              {{7.0F - 0.4F * step, 2.0F, -5.0F}, 2.1F},
              {{6.2F - 1.0F * step, -1.8F, -5.0F - 0.3F * step}, 1.5F},
              {{5.4F - 1.5F * step, -4.0F, -4.4F - 0.5F * step}, 0.6F}},
             3);
  // The bow that ties it.
  model.Add(kCloth, 0.4F)
      .Limb({5.2F, 9.4F, -3.6F}, {6.0F, 12.3F, -5.4F}, 0.9F, 1.6F)
      .Limb({5.2F, 9.4F, -3.6F}, {8.4F, 8.8F, -2.6F}, 0.9F, 1.6F);
  // Short locks before the ears leave the cheek free, then the parted fringe.
  hair.Limb({5.5F, 7.2F, -0.8F}, {5.5F, 2.6F, -0.4F}, 1.4F, 0.5F);
  hair.Limb({-5.5F, 7.2F, -0.8F}, {-5.5F, 2.6F, -0.4F}, 1.4F, 0.5F);
  hair.Limb({1.2F, 11.0F, 3.6F}, {4.6F, 7.0F, 4.6F}, 2.0F, 0.7F);
  hair.Limb({0.8F, 11.0F, 4.0F}, {1.9F, 7.6F, 5.8F}, 1.8F, 0.6F);
  hair.Limb({0.2F, 11.0F, 3.8F}, {-3.0F, 7.4F, 5.5F}, 2.0F, 0.6F);
  hair.Limb({-1.6F, 10.6F, 3.2F}, {-5.2F, 6.6F, 3.8F}, 2.0F, 0.7F);
}

}  // namespace

Model WomanModel(float step) {
  Model model;
  AddDress(model, step);
  AddArms(model, step);
  model.Add(kLining, 1).Ball({0, -0.5F, 0.2F}, {4.3F, 2.0F, 3.9F});
  model.Add(kMetal).Ball({0, -1.0F, 4.0F}, {1.0F, 1.0F, 0.8F});
  model.Add(kFace, 1)
      .Ball({0, 5.4F, 0.2F}, {5.5F, 5.4F, 5.2F})
      .Ball({0, 3.3F, 1.4F}, {4.0F, 3.1F, 4.2F});
  AddHair(model, step);
  model.Finish();
  return model;
}

std::vector<Material> WomanMaterials() {
  std::vector<Material> m(8);
  m[kFace] = {{0x884840, 0xD08868, 0xF4BC98, 0xFCE0C4}, 0, 0.1F, 0.16F, EvenSkin()};
  m[kHair] = {{0x603814, 0x8C5C18, 0xC89028, 0xECC450, 0xF8ECA0}, 0.3F, 0.15F};
  m[kCloth] = {{0x601434, 0x902048, 0xCC3C60, 0xF07088, 0xF8B4B8}, 0, 0.2F};
  m[kTrousers] = m[kCloth];
  m[kBoots] = {{0x4C2834, 0x844448, 0xB87068, 0xDCA08C}, 0, 0.1F};
  m[kTrim] = {{0x2C4878, 0x4C88C8, 0xA0E0F8}, 0.3F, 0.1F};
  m[kMetal] = {{0xA07010, 0xF4DC60, 0xF8F0B0}, 0.4F, 0.1F, 0.1F};
  m[kLining] = {{0x605880, 0x9C94B8, 0xD4D0E4, 0xF8F4F0}, 0, 0.15F, 0.1F};
  return m;
}

}  // namespace orvane::paint
