// Heaven: a blindfolded angel in white and gold, sword in hand.
#include <array>

#include "content/pictures/figures/figures.h"
#include "content/pictures/figures/monster.h"
#include "content/pictures/figures/shadow.h"

namespace orvane::paint {
namespace {

enum Stuff { kRobe, kFeather, kGold, kSkin, kHair, kBlade, kSash };

// One wing: three rows of feathers that fan out from a raised arm.
void AddWing(Model& model, float side, float spread) {
  const Vec shoulder{3.4F * side, 8, -5};
  const Vec elbow{(10 + spread) * side, 18, -9};
  const Vec wrist{(17 + spread * 2) * side, 25, -9};
  const auto along = [&](float t) {
    return t < 0.5F ? Mix(shoulder, elbow, t * 2) : Mix(elbow, wrist, t * 2 - 1);
  };
  model.Add(kFeather, 1.5F, 1).Limb(shoulder, elbow, 2.6F, 2.4F).Limb(elbow, wrist, 2.4F, 2);
  struct Row {
    int Count;
    float Length;
    float Width;
    float Depth;
  };
  static constexpr std::array<Row, 3> kRows{
      {{8, 23, 2.6F, -2}, {7, 15, 2.4F, -0.6F}, {6, 8.5F, 2.2F, 0.8F}}};
  for (const auto& [count, length, width, depth] : kRows) {
    for (int i = 0; i < count; ++i) {
      const float t = static_cast<float>(i) / static_cast<float>(count - 1);
      const float angle = Mix(-1.75F, 0.55F, t * t * 0.5F + t * 0.5F);
      const Vec out{std::cos(angle) * side * 0.85F, std::sin(angle), -0.15F};
      const Vec root = along(0.15F + 0.85F * t) + Vec{0, 0, depth};
      model.Add(kFeather).Leaf(root, root + out * (length * (0.72F + 0.28F * t)), width, 0.9F);
    }
  }
}

void AddBody(Model& model) {
  Group& robe = model.Add(kRobe, 2.5F, 0);
  robe.Limb({0, 6, 0}, {0, -3, 0}, 5.6F, 4.6F);
  for (int i = 0; i < 8; ++i) {
    const float a = static_cast<float>(i) * 0.785F + 0.2F;
    robe.Chain({{Around(a, 2, -4, 2), 3.2F},
                {Around(a, 7, -13, 6) + Vec{-1, 0, -1}, 3.4F},
                {Around(a + 0.2F, 12, -23, 9) + Vec{-4, 0, -3}, 2.2F}},
               4);
  }
  model.Add(kGold).Ball({0, -2.6F, 0}, {5, 1.2F, 4.8F});
  model.Add(kSash, 1).Leaf({1, -2, 5}, {3.4F, -21, 11}, 2.4F, 1.4F);
  // Breastplate and shoulders.
  model.Add(kGold, 1.5F).Ball({0, 5, 0.6F}, {5.8F, 5, 5});
  model.AddPair(kGold, 0.5F).Ball({6.4F, 7.6F, 0}, {3.2F, 2.6F, 3.2F});
}

void AddArms(Model& model) {
  model.Add(kRobe, 1, 0.5F).Limb({-6.4F, 6.6F, 0}, {-9.6F, 0, 3}, 2.7F, 3);
  model.Add(kSkin, 0.8F)
      .Limb({-9.6F, 0, 3}, {-7, 1, 11}, 1.9F, 1.6F)
      .Ball({-6.8F, 1.2F, 12}, {2, 2, 2});
  model.Add(kRobe, 1, 0.5F).Limb({6.4F, 6.6F, 0}, {10.4F, 4, 3}, 2.7F, 3);
  model.Add(kSkin, 0.8F)
      .Limb({10.4F, 4, 3}, {13, 11, 8}, 1.9F, 1.6F)
      .Ball({13.2F, 12, 9}, {2, 2, 2});
  // The sword points up and ahead.
  model.Add(kBlade, 0.3F).Leaf({13.2F, 12, 9}, {17, 40, 15}, 2, 0.8F, {0.7F, 0, -0.7F});
  model.Add(kGold)
      .Limb({10.4F, 16, 8}, {16.6F, 15, 11}, 1, 1)
      .Limb({12.8F, 8.6F, 8}, {13.4F, 14, 9.6F}, 1, 1);
}

Model AngelModel() {
  Model model;
  AddWing(model, -1, 0);
  AddWing(model, 1, 1);
  AddBody(model);
  AddArms(model);
  // The head is a little large for the body, as the style of the figures wants it.
  model.Enter({{0, -2.6F, 0}, 0, 0, 0, 1.22F});
  model.Add(kSkin, 1)
      .Limb({0, 9, 0}, {0, 12, 0.6F}, 2.2F, 2.2F)
      .Ball({0, 16, 1}, {4.6F, 5.2F, 4.8F})
      .Ball({0, 13.4F, 2.4F}, {3, 2.6F, 3});
  model.Add(kHair, 1)
      .Ball({0, 18, -0.6F}, {5.4F, 4.6F, 5.4F})
      .Chain({{{-4, 16, -1.6F}, 2.6F},
              {{-5, 10, -3}, 2.2F},
              {{-6.4F, 5, -4}, 1.6F},
              {{-6, 2, -4}, 0.5F}},
             4)
      .Chain({{{4, 16, -1.6F}, 2.6F}, {{5, 10, -3}, 2.2F}, {{6, 5, -4}, 0.8F}}, 4)
      .Limb({0, 21, 3}, {-3.6F, 17.6F, 4.8F}, 1.8F, 0.8F)
      .Limb({0, 21, 3}, {4, 18, 4.6F}, 1.8F, 0.8F);
  model.Add(kSash).Chain(Arc({0, 16.2F, 0.9F}, {0, 0, 4.8F}, {4.7F, 0, 0}, -1.5F, 1.5F, 1.1F, 1.1F),
                         2);
  model.Add(kGold, 0).Ring({0, 25.6F, -2}, {6.6F, 0, 0}, {0, 2.6F, 6}, 1);
  model.Leave();
  model.Finish();
  return model;
}

}  // namespace

Image PaintAngel() {
  std::vector<Material> m(7);
  m[kRobe] = {{0x4C4878, 0x7C7CAC, 0xB0B4D8, 0xDCE0F0, 0xF8F8F8}, 0, 0.2F, 0.06F};
  m[kFeather] = {{0x38487C, 0x6484B8, 0x9CC0E0, 0xD4E8F4, 0xF8F8F8}, 0, 0.3F, 0.08F};
  m[kGold] = {{0x6C4010, 0xB88020, 0xECC040, 0xF8E890, 0xF8F8E0}, 0.7F, 0.3F, 0.05F};
  m[kSkin] = {{0x885048, 0xCC8C6C, 0xF0C09C, 0xF8E0C8}, 0, 0.2F, 0.24F};
  m[kHair] = {{0x70401C, 0xB87828, 0xE8B848, 0xF8E898}, 0.3F, 0.3F};
  m[kBlade] = {{0x385888, 0x80B8D8, 0xD0F0F8, 0xF8F8F8}, 0.8F, 0.4F, 0.15F};
  m[kSash] = {{0x301848, 0x58307C, 0x8C5CB0, 0xC49CD8}, 0, 0.2F};
  Sprite sprite = Render(AngelModel(), m, HoverView(0.5F, 0.06F, 7));
  StampAt(sprite, {0, 13.4F, 6.4F}, {"mm"}, "m", {0xB06858});
  CastShadow(sprite, ShadowBelow(sprite));
  return PairSheet(sprite, 128, 64, 64);
}

}  // namespace orvane::paint
