// The soldier: full plate, a red plume and cape, halberd and round shield.
#include "content/pictures/figures/figures.h"
#include "content/pictures/figures/monster.h"
#include "content/pictures/figures/shadow.h"

namespace orvane::paint {
namespace {

enum Stuff { kSteel, kMail, kLeather, kGold, kSkin, kRed };

void AddLeg(Model& model, float side, Vec hip, Vec knee, Vec ankle) {
  model.Add(kMail, 1.5F, 1).Limb(hip, knee, 4.4F, 3.4F).Limb(knee, ankle, 3.2F, 2.6F);
  model.Add(kSteel, 1)
      .Ball(knee + Vec{0, 0, 1.6F}, {3.1F, 3.5F, 2.7F})
      .Limb(knee + Vec{0, -4, 1}, ankle + Vec{0, 1, 0.6F}, 3.1F, 2.8F);
  model.Add(kLeather, 1)
      .Limb(ankle + Vec{0, -1.5F, 0}, ankle + Vec{side * 1.4F, -2.2F, 4.6F}, 2.9F, 2.4F);
  model.Add(kSteel, 1).Limb(ankle + Vec{side * 0.8F, -1, 3}, ankle + Vec{side * 1.4F, -1.8F, 5},
                            2.6F, 2);
}

void AddArm(Model& model, Vec shoulder, Vec elbow, Vec hand) {
  model.Add(kMail, 1, 0.5F).Limb(shoulder, elbow, 3.2F, 2.8F);
  model.Add(kSteel, 1).Limb(elbow, hand, 3.2F, 2.5F).Ball(elbow, {3.3F, 3.3F, 3.3F});
  model.Add(kLeather).Ball(hand, {2.9F, 2.9F, 2.9F});
}

void AddHead(Model& model) {
  model.Add(kSkin, 1).Ball({0, 19.5F, 2}, {5, 6, 5});
  model.Add(kSteel, 1)
      .Ball({0, 22.6F, 0.2F}, {6.4F, 6.2F, 6.6F})
      .Limb({0, 18, -4}, {0, 22, -3}, 4, 3)
      .Limb({0, 22.4F, 6.6F}, {0, 17.6F, 7.8F}, 1.2F, 0.9F);
  model.AddPair(kSteel, 1).Limb({5.5F, 16.6F, 1.4F}, {5, 21, 1}, 1.8F, 1.9F);
  model.Add(kGold).Chain(Arc({0, 21.4F, 0}, {0, 0, 6.8F}, {6.6F, 0, 0}, -1.3F, 1.3F, 1, 1), 2);
  model.Add(kRed, 1.5F)
      .Chain({{{0, 27.6F, 6}, 1.6F},
              {{0, 32, 2}, 2.6F},
              {{0, 31.6F, -6}, 3},
              {{0, 25, -11}, 2.8F},
              {{0, 17, -11}, 1}},
             4);
}

void AddShield(Model& model, Vec at) {
  model.Add(kRed, 0).Ball(at, {9, 11, 2.2F});
  model.Add(kGold).Ring(at + Vec{0, 0, 0.5F}, {9.2F, 0, 0}, {0, 11.2F, 0}, 1.1F);
  model.Add(kGold)
      .Limb(at + Vec{0, -9, 1.9F}, at + Vec{0, 9, 1.9F}, 0.9F, 0.9F)
      .Limb(at + Vec{-7, 0, 1.9F}, at + Vec{7, 0, 1.9F}, 0.9F, 0.9F)
      .Ball(at + Vec{0, 0, 2.2F}, {2.6F, 2.6F, 1.6F});
}

void AddHalberd(Model& model, Vec foot, Vec top) {
  const Vec up = Unit(top - foot);
  const Vec ahead{0, -up.Z, up.Y};
  model.Add(kLeather).Limb(foot, top, 1, 1);
  model.Add(kGold).Limb(top - up * 2, top + up * 1, 1.6F, 1.6F);
  model.Add(kSteel, 0.4F).Limb(top, top + up * 9, 1.6F, 0.3F);
  // The axe blade looks ahead, the hook back.
  model.Add(kSteel, 0.3F)
      .Panel(top - up * 5, top + ahead * 8 + up * 2, top + ahead * 8 - up * 8, -0.25F, 0, 0.9F)
      .Limb(top - up * 2.6F, top - ahead * 5 - up * 4, 1.3F, 0.3F);
}

Model SoldierModel() {
  Model model;
  AddLeg(model, -1, {-4.5F, -6, 0}, {-7, -15, 5}, {-8.5F, -25, 4});
  AddLeg(model, 1, {4.5F, -6, 0}, {8, -15, 1}, {10, -25, -4});
  model.Add(kMail, 2).Limb({0, -6, 0}, {0, 2, 0}, 7.2F, 6.5F);
  // Tassets over the hips.
  for (const float x : {-5.6F, 0.0F, 5.6F}) {
    model.Add(kSteel, 1).Leaf({x * 0.8F, -2.6F, 4.6F}, {x * 1.15F, -13, 6}, 3.6F, 2,
                              {x * 0.08F, 0, 1});
  }
  model.Add(kLeather).Ball({0, -3.2F, 0}, {7.8F, 1.5F, 6.8F});
  model.Add(kGold).Ball({0, -3.2F, 6.6F}, {1.9F, 1.9F, 1});
  model.Add(kSteel, 2.5F)
      .Ball({0, 7, 0}, {9, 8, 6.6F})
      .Ball({-3.4F, 9, 3}, {4.4F, 4, 4})
      .Ball({3.4F, 9, 3}, {4.4F, 4, 4});
  model.AddPair(kSteel, 1.5F)
      .Ball({10.5F, 12, 0}, {5, 4.2F, 5})
      .Ball({11.8F, 8.6F, 0}, {4.4F, 3.2F, 4.4F});
  model.AddPair(kGold).Limb({7.2F, 15.4F, -1}, {11.4F, 15.9F, 0}, 1.1F, 1);
  AddArm(model, {11, 9, 1}, {16, 1, 4}, {15, 0, 14});
  AddArm(model, {-11, 9, 1}, {-15, 0, 4}, {-11, -1, 12});
  AddHalberd(model, {17, -17, -2}, {13, 23, 34});
  AddHead(model);
  AddShield(model, {-12, -3, 15});
  model.Add(kRed, 2)
      .Limb({-6, 13, -6}, {-11, -20, -12}, 4, 6)
      .Limb({6, 13, -6}, {9, -18, -11}, 4, 6)
      .Limb({0, 13, -7}, {-1, -21, -14}, 4, 6);
  model.Finish();
  return model;
}

}  // namespace

Image PaintSoldier() {
  std::vector<Material> m(6);
  m[kSteel] = {{0x1C2034, 0x384258, 0x5C6C84, 0x8C9CAC, 0xC0CCD0, 0xF4F8F8}, 0.75F, 0.4F};
  m[kMail] = {{0x14182C, 0x243450, 0x3C5878, 0x6C8CA4}, 0.2F, 0.3F};
  m[kLeather] = {{0x24140C, 0x442814, 0x6C4420, 0x9C6C38, 0xCCA068}, 0.1F};
  m[kGold] = {{0x5C3C08, 0xA07010, 0xD8A824, 0xF4DC60, 0xF8F8B0}, 0.5F};
  m[kSkin] = {{0x3C2028, 0x7C4838, 0xBC7C58, 0xE8B088}};
  m[kRed] = {{0x340814, 0x640C1C, 0x981C20, 0xCC3C2C, 0xEC7048}, 0.15F};
  Sprite sprite = Render(SoldierModel(), m, MonsterView(0.55F, 0.12F));
  // The face: a frown under the brow, a nasal of steel, a moustache.
  StampAt(sprite, {0.4F, 18.2F, 6}, {"BBSBB", "WKSWK", "FFSFF", "DMMMD", ".DFD."}, "BWKSFMD",
          {0x5C3028, 0xF8F0E0, 0x180C14, 0xC0CCD0, 0xE8B088, 0x442018, 0xA06040});
  CastShadow(sprite, ShadowUnder(sprite));
  return PairSheet(sprite, 128, 64, 64);
}

}  // namespace orvane::paint
