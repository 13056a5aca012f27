// The merman: scaled, finned, goggle-eyed, with a trident.
#include "content/pictures/figures/figures.h"
#include "content/pictures/figures/monster.h"
#include "content/pictures/figures/shadow.h"

namespace orvane::paint {
namespace {

enum Stuff { kSkin, kBelly, kFin, kEye, kMouth, kTooth, kSteel };

void AddLeg(Model& model, Vec hip, Vec knee, Vec ankle) {
  model.Add(kSkin, 3, 3).Limb(hip, knee, 5.6F, 4).Limb(knee, ankle, 3.8F, 2.4F);
  Group& foot = model.Add(kFin, 1.5F, 1);
  for (int i = -1; i <= 1; ++i) {
    foot.Limb(ankle + Vec{0, -0.8F, 0}, ankle + Vec{static_cast<float>(i) * 4.4F, -2.4F, 7.6F}, 2,
              0.9F);
  }
  foot.Panel(ankle + Vec{0, -1.4F, 0}, ankle + Vec{-4.4F, -2.4F, 7.6F},
             ankle + Vec{4.4F, -2.4F, 7.6F}, 0.1F, 0, 0.8F);
  // A fin on the calf.
  const Vec calf = Mix(knee, ankle, 0.4F);
  model.Add(kFin).Panel(knee + Vec{0, 0, -3}, calf + Vec{0, 4, -9}, calf + Vec{0, -5, -6}, 0.12F, 0,
                        0.7F);
}

void AddArm(Model& model, Vec shoulder, Vec elbow, Vec hand) {
  model.Add(kSkin, 2, 2.5F).Limb(shoulder, elbow, 4.4F, 3.2F).Limb(elbow, hand, 3.2F, 2.4F);
  model.Add(kSkin, 0.8F, 1).Ball(hand, {2.9F, 2.9F, 2.9F});
  const Vec middle = Mix(elbow, hand, 0.4F);
  model.Add(kFin).Panel(elbow, elbow + Vec{0, 1, -8}, middle + Vec{0, -6, -5}, 0.12F, 0, 0.7F);
}

void AddHead(Model& model) {
  model.Enter({{0, 16, 5}, 0.1F, 0.1F, 0, 1});
  model.Add(kSkin, 3, 3).Ball({0, 2, 0}, {8, 7.6F, 8.4F}).Ball({0, -1, 7}, {6.4F, 4, 5.4F});
  model.Add(kBelly, 2, 1.5F).Ball({0, -5.6F, 4.6F}, {6, 3.2F, 6.4F});
  model.Add(kMouth).Ball({0, -3.4F, 8.4F}, {6, 1.5F, 4.4F});
  Group& teeth = model.Add(kTooth);
  for (int i = -2; i <= 2; ++i) {
    const float x = static_cast<float>(i) * 2.2F;
    teeth.Limb({x, -2, 12.4F - 0.2F * x * x}, {x, -4.6F, 12.8F - 0.2F * x * x}, 0.9F, 0.2F);
  }
  model.AddPair(kSkin, 1, 1).Ball({6.2F, 5, 4}, {3.4F, 3.8F, 3.8F});
  model.AddPair(kEye).Ball({7, 5.2F, 5.4F}, {2.9F, 3.1F, 3.1F});
  // Ear fins on rays, and the crest.
  model.AddPair(kFin)
      .Panel({6, 0, -1}, {17, 9, -6}, {17, 1, -7}, 0.14F, 1, 0.6F)
      .Panel({6, 0, -1}, {17, 1, -7}, {13, -6, -5}, 0.14F, 1, 0.6F);
  model.Add(kFin)
      .Panel({0, 3, 0}, {0, 12, 7}, {0, 18, -3}, 0.1F, 0, 0.8F)
      .Panel({0, 3, -1}, {0, 18, -3}, {0, 14, -13}, 0.16F, 0, 0.8F)
      .Panel({0, 2, -3}, {0, 14, -13}, {0, 2, -15}, 0.18F, 0, 0.8F);
  model.Leave();
}

Model MermanModel() {
  Model model;
  AddLeg(model, {-4, -9, 0}, {-8, -16, 5}, {-8.4F, -26, 1});
  AddLeg(model, {4, -9, 0}, {9, -16, 4}, {11, -26, -2});
  model.Add(kSkin, 8, 2)
      .Chain(
          {{{0, -9, -1}, 8}, {{0, -3, 1}, 8.4F}, {{0, 5, 1}, 9}, {{0, 11, 1}, 7}, {{0, 15, 3}, 6}},
          3);
  // A tail for balance.
  model.Add(kSkin, 2, 3).Chain({{{0, -9, -5}, 5}, {{-1, -15, -12}, 3.6F}, {{-2, -19, -18}, 2}}, 3);
  model.Add(kFin).Panel({-2, -18, -16}, {-3, -14, -28}, {-3, -27, -25}, 0.25F, 0, 0.8F);
  AddArm(model, {-10, 9, 1}, {-15, 1, 3}, {-12, -1, 13});
  AddArm(model, {10, 9, 1}, {16, 4, 4}, {15, 6, 15});
  model.Add(kSteel).Ring({0, -8, 0}, {8.2F, 0, 0}, {0, 0.6F, 7.8F}, 1.1F);
  AddHead(model);
  // The trident stands in the far hand.
  const Vec foot{17, -27, 12};
  const Vec top{14.4F, 22, 18};
  model.Add(kSteel, 0.4F)
      .Limb(foot, top, 1, 1)
      .Limb(top + Vec{0, 0, -5}, top + Vec{0, 0, 5}, 1.1F, 1.1F);
  for (const float z : {-5.0F, 0.0F, 5.0F}) {
    const float high = z == 0 ? 12.0F : 9.0F;
    model.Add(kSteel, 0.4F)
        .Limb(top + Vec{0, 0, z}, top + Vec{-0.3F, high, z + 1}, 1.1F, 0.7F)
        .Leaf(top + Vec{-0.3F, high - 3, z + 1}, top + Vec{-0.3F, high + 2.6F, z + 1}, 1.7F, 1,
              {1, 0, 0});
  }
  model.Finish();
  return model;
}

}  // namespace

Image PaintMerman() {
  std::vector<Material> m(7);
  m[kSkin] = {{0x0C2030, 0x103C48, 0x1C6464, 0x2C907C, 0x58BC90, 0xA0E0A8},
              0.4F,
              0.5F,
              0.07F,
              Scales(3, kBelly, 3.4F)};
  m[kBelly] = {{0x48483C, 0x807C54, 0xBCB474, 0xE8E0A0, 0xF8F4CC}, 0.2F, 0.2F};
  m[kFin] = {{0x481428, 0x842430, 0xC4442C, 0xEC7C38, 0xF8BC68}, 0.1F, 0.3F, 0, Membrane(3, 0.30F)};
  m[kEye] = {{0x806008, 0xE8C820, 0xF8F078, 0xF8F8D8}, 0.8F, 0, 0.2F};
  m[kMouth] = {{0x14040C, 0x481020}};
  m[kTooth] = {{0x908868, 0xF0ECD0}, 0, 0, 0.3F};
  m[kSteel] = {{0x2C2C48, 0x646C88, 0xA8B4C8, 0xF0F4F8}, 0.6F};
  Sprite sprite = Render(MermanModel(), m, MonsterView(0.6F, 0.1F));
  StampAt(sprite, {-6.2F, 22, 13}, {"KK", "KK"}, "K", {0x100814});
  CastShadow(sprite, ShadowUnder(sprite));
  return PairSheet(sprite, 128, 64, 64);
}

}  // namespace orvane::paint
