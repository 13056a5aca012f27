// The bad bat: a grinning ball of fur between two great wings.
#include <array>

#include "content/pictures/figures/figures.h"
#include "content/pictures/figures/monster.h"
#include "content/pictures/figures/shadow.h"

namespace orvane::paint {
namespace {

enum Stuff { kFur, kBone, kSkin, kEar, kMouth, kTooth, kEye, kBelly };

constexpr float kBodySize = 1.25F;

void AddWings(Model& model) {
  const Vec shoulder{7, 4, -3};
  const Vec elbow{15, 17, -6};
  const Vec wrist{21, 27, -6};
  const std::array<Vec, 4> tips{Vec{34, 26, -7}, Vec{37, 8, -8}, Vec{31, -8, -8}, Vec{20, -17, -7}};
  const Vec flank{6, -12, -4};
  model.AddPair(kBone, 1, 1).Limb(shoulder, elbow, 2.6F, 2).Limb(elbow, wrist, 2, 1.7F);
  for (const Vec& tip : tips) {
    model.AddPair(kBone, 0.5F)
        .Chain({{wrist, 1.5F}, {Mix(wrist, tip, 0.5F) + Vec{2, 2, 1}, 1.1F}, {tip, 0.4F}}, 4);
  }
  model.AddPair(kTooth).Limb(wrist, wrist + Vec{1, 5, 2}, 1.4F, 0.2F);
  Group& skin = model.AddPair(kSkin);
  for (size_t i = 0; i + 1 < tips.size(); ++i)
    skin.Panel(wrist, tips[i], tips[i + 1], 0.2F, -1.5F, 0.4F);
  skin.Panel(wrist, tips[3], flank, 0.16F, -1, 0.4F);
  skin.Panel(elbow, wrist, flank, 0, 0, 0.4F).Panel(shoulder, elbow, flank, 0, 0, 0.4F);
}

Model BatModel() {
  Model model;
  AddWings(model);
  model.Enter({{0, 0, 0}, 0, 0, 0, kBodySize});
  model.Add(kFur, 4, 0).Ball({0, 1, 0}, {11.5F, 11, 10.5F}).Ball({0, -8, -1}, {7, 6, 6.6F});
  model.Add(kBelly, 3, 3).Ball({0, -7, 3.6F}, {5.4F, 5.4F, 4.6F});
  // Tufts that break up the round outline.
  Group& tufts = model.Add(kFur, 1, 1.5F);
  for (int i = 0; i < 12; ++i) {
    const float a = static_cast<float>(i) * 0.52F + 0.25F;
    const Vec out{std::cos(a), std::sin(a), 0};
    tufts.Limb(out * 9 + Vec{0, 0, 2}, out * 13.4F + Vec{0, -2, 0}, 2.4F, 0.3F);
  }
  model.AddPair(kFur, 1, 1.5F).Leaf({4, 8, 1}, {11, 24, -1}, 4.6F, 2, {0.2F, 0, 1});
  model.AddPair(kEar).Leaf({5, 10, 2.4F}, {10.4F, 22, 0.6F}, 2.8F, 1.4F, {0.2F, 0, 1});
  model.Add(kMouth).Ball({0, -2.6F, 8.2F}, {7.8F, 4.4F, 4});
  model.Add(kFur, 0.6F, 1).Ball({0, 2.4F, 10.6F}, {2.2F, 1.6F, 1.6F});
  model.AddPair(kTooth)
      .Limb({4.2F, 0.6F, 11}, {4.2F, -5.4F, 11.8F}, 1.7F, 0.3F)
      .Limb({1.4F, 0.4F, 12}, {1.4F, -2, 12.2F}, 1.1F, 0.4F);
  model.AddPair(kTooth).Limb({2.8F, -6, 11}, {2.8F, -2.8F, 11.6F}, 1.1F, 0.3F);
  model.AddPair(kEye).Ball({4.4F, 4.6F, 8.6F}, {3.1F, 3, 2});
  model.AddPair(kFur, 0.6F, 0.6F).Limb({1.4F, 6, 10.2F}, {7.4F, 9.4F, 7.4F}, 1.5F, 1.2F);
  model.AddPair(kTooth)
      .Limb({3, -12, 2}, {3.6F, -17, 4}, 1.4F, 0.3F)
      .Limb({4.6F, -11.6F, 1}, {6.2F, -15.6F, 2.6F}, 1.3F, 0.3F);
  model.Finish();
  return model;
}

}  // namespace

Image PaintBat() {
  std::vector<Material> m(8);
  m[kFur] = {{0x141428, 0x242844, 0x3C4468, 0x5C688C, 0x8C9CB4, 0xC4D0D8},
             0,
             0.45F,
             0,
             Strands(1.5F, 0.16F)};
  m[kBone] = {{0x2C1428, 0x58243C, 0x8C3C48, 0xC06858}, 0.2F, 0.4F};
  m[kSkin] = {{0x380C20, 0x641828, 0x9C2C28, 0xD0542C, 0xF08C44}, 0, 0.35F, 0, Membrane(2, 0.26F)};
  m[kEar] = {{0x58243C, 0x9C4858, 0xD88078}};
  m[kMouth] = {{0x1C040C, 0x48101C, 0x801C2C}};
  m[kTooth] = {{0x80745C, 0xDCD0A8, 0xF8F8E8}, 0.1F, 0.1F, 0.25F};
  m[kEye] = {{0xA86008, 0xF0C020, 0xF8F088}, 0.3F, 0, 0.3F};
  m[kBelly] = {{0x3C4468, 0x6C7498, 0xA0A8C0, 0xD0D4DC}, 0, 0.2F, 0, Strands(1.5F, 0.16F)};
  Sprite sprite = Render(BatModel(), m, HoverView(0.42F, 0.02F, 9));
  StampAt(sprite, Vec{-3.4F, 4.4F, 10.8F} * kBodySize, {"KK", "KK"}, "K", {0x18040C});
  StampAt(sprite, Vec{5.2F, 4.4F, 10.4F} * kBodySize, {"K", "K"}, "K", {0x18040C});
  CastShadow(sprite, ShadowBelow(sprite));
  return PairSheet(sprite, 129, 64, 64);
}

}  // namespace orvane::paint
