// The naked fiend: a red giant in nothing but a leaf.
#include "content/pictures/figures/figures.h"
#include "content/pictures/figures/monster.h"
#include "content/pictures/figures/shadow.h"

namespace orvane::paint {
namespace {

enum Stuff { kSkin, kHorn, kHair, kLeaf, kMouth, kTooth, kGold };

void AddLegs(Model& model) {
  // A lunge: the near leg pushes from behind, the far one is bent ahead.
  const Vec hips[2] = {{-5, -8, 0}, {5, -8, 0}};
  const Vec knees[2] = {{-11, -16, -1}, {10, -15, 15}};
  const Vec feet[2] = {{-14, -26, -10}, {12, -26, 12}};
  for (int i = 0; i < 2; ++i) {
    model.Add(kSkin, 3, 3)
        .Limb(hips[i], knees[i], 6.4F, 4.6F)
        .Limb(knees[i], feet[i], 4.4F, 3)
        .Ball(Mix(knees[i], feet[i], 0.35F) + Vec{0, 0, -1.6F}, {3.6F, 4.6F, 3.8F})
        .Limb(feet[i] + Vec{0, -1, 0}, feet[i] + Vec{0, -1.6F, 6}, 3, 2.4F);
    Group& claws = model.Add(kHorn);
    for (int c = -1; c <= 1; ++c) {
      const float x = static_cast<float>(c) * 1.9F;
      claws.Limb(feet[i] + Vec{x, -2, 7}, feet[i] + Vec{x * 1.1F, -2.6F, 9.6F}, 1.1F, 0.4F);
    }
  }
}

void AddArm(Model& model, Vec shoulder, Vec elbow, Vec hand) {
  model.Add(kSkin, 2.5F, 3)
      .Ball(shoulder, {6, 5.6F, 5.6F})
      .Limb(shoulder, elbow, 4.8F, 4)
      .Ball(Mix(shoulder, elbow, 0.5F) + Vec{0, 0.6F, 1.6F}, {4.6F, 4.6F, 4.4F})
      .Limb(elbow, hand, 4.4F, 3);
  model.Add(kSkin, 1, 1).Ball(hand, {3.9F, 3.7F, 3.9F});
  model.Add(kSkin, 0.5F, 0.8F)
      .Limb(hand + Vec{-2, 1, 3}, hand + Vec{2, 1.2F, 3}, 1.5F, 1.5F)
      .Limb(hand + Vec{-2, -1.6F, 2.8F}, hand + Vec{2, -1.4F, 2.8F}, 1.4F, 1.4F);
  model.Add(kGold).Limb(Mix(elbow, hand, 0.62F), Mix(elbow, hand, 0.76F), 4, 3.8F);
}

void AddHead(Model& model) {
  model.Enter({{0, 18, 5}, 0.15F, 0.06F, 0, 1});
  model.Add(kSkin, 2, 2.5F)
      .Ball({0, 2, 0}, {6.2F, 6.4F, 6.4F})
      .Ball({0, -3, 3}, {5, 4, 4.6F})
      .Limb({-4, 3.4F, 5}, {4, 3.4F, 5}, 1.7F, 1.7F)
      .Ball({0, 0, 7}, {1.7F, 1.8F, 1.8F});
  model.AddPair(kSkin, 0.5F, 1).Leaf({5.6F, 0, 0}, {11, 3.6F, -2}, 1.8F, 1.1F);
  model.AddPair(kHorn, 1).Chain(
      {{{3.8F, 6, 1}, 2.4F}, {{7, 10, 1}, 1.9F}, {{6.6F, 15, 2.6F}, 0.4F}}, 4);
  model.Add(kMouth).Ball({0, -3.8F, 6.4F}, {3.8F, 1.7F, 2});
  model.AddPair(kTooth).Limb({2.6F, -4.6F, 7.8F}, {3, -1.6F, 8.6F}, 1.1F, 0.3F);
  model.Add(kHair, 1, 0.5F)
      .Chain({{{0, 8, -3}, 2.4F}, {{0, 11, -7}, 2.8F}, {{-1, 7, -12}, 2.6F}, {{-2, 0, -13}, 0.6F}},
             3);
  model.Add(kGold).Ball({0, 9, -4}, {2.6F, 1.4F, 2.6F});
  model.Leave();
}

Model FiendModel() {
  Model model;
  AddLegs(model);
  model.Add(kSkin, 3.5F, 2)
      .Ball({0, -6, 0}, {8, 5.4F, 6.4F})
      .Ball({0, 0, 0.6F}, {8, 6.6F, 6.6F})
      .Ball({0, 8, 0}, {11, 7, 7});
  model.AddPair(kSkin, 1.5F, 1.6F).Ball({4.6F, 8.4F, 4.6F}, {5.2F, 4, 3.6F});
  model.AddPair(kSkin, 1, 1)
      .Ball({2.3F, 2.2F, 6.2F}, {2.2F, 1.7F, 1.6F})
      .Ball({2.3F, -1.4F, 6.4F}, {2.2F, 1.7F, 1.6F});
  model.Add(kSkin, 3, 3).Limb({0, 12, 0}, {0, 16, 3}, 5.4F, 4.6F);
  AddArm(model, {-12, 10, 1}, {-18, 2, 3}, {-15, 0, 14});
  AddArm(model, {12, 10, 0}, {21, 8, 1}, {22, 19, 5});
  AddHead(model);
  // The leaf and its string.
  model.Add(kGold).Ring({0, -6.4F, 0}, {8, 0, 0}, {0, 0.6F, 6.6F}, 0.7F);
  model.Add(kLeaf, 0.6F)
      .Leaf({0, -5, 7}, {0, -16, 8.6F}, 4.6F, 1.2F)
      .Limb({0, -6, 8}, {0, -14, 9.6F}, 0.6F, 0.4F);
  model.Finish();
  return model;
}

}  // namespace

Image PaintNakedFiend() {
  std::vector<Material> m(7);
  m[kSkin] = {{0x2C0828, 0x5C1038, 0x981C44, 0xD03450, 0xF0646C, 0xF8A098, 0xF8DCC8}, 0.2F, 0.4F};
  m[kHorn] = {{0x3C3438, 0x7C7060, 0xC4B890, 0xF4ECC8}, 0.2F};
  m[kHair] = {{0x140C18, 0x2C2034, 0x504058}, 0.3F};
  m[kLeaf] = {{0x143820, 0x24682C, 0x48A038, 0x98D858}, 0.1F};
  m[kMouth] = {{0x200410, 0x50101C}};
  m[kTooth] = {{0xA89870, 0xF0E8C8, 0xF8F8E8}, 0, 0, 0.2F};
  m[kGold] = {{0x6C4010, 0xB88020, 0xF0CC50, 0xF8F4B0}, 0.6F};
  Sprite sprite = Render(FiendModel(), m, MonsterView(0.55F, 0.1F));
  const std::vector<uint32_t> eyes{0x20040C, 0xF8E850};
  StampAt(sprite, {-2.2F, 20.4F, 11.6F}, {"KK", "YK"}, "KY", eyes);
  StampAt(sprite, {3.0F, 20.2F, 11.6F}, {"KK", "YK"}, "KY", eyes);
  CastShadow(sprite, ShadowUnder(sprite));
  return PairSheet(sprite, 127, 64, 64);
}

}  // namespace orvane::paint
