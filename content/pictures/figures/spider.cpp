// The sour spider: a lemon for an abdomen and eight long violet legs.
#include <array>

#include "content/pictures/figures/figures.h"
#include "content/pictures/figures/monster.h"
#include "content/pictures/figures/shadow.h"

namespace orvane::paint {
namespace {

enum Stuff { kShell, kLemon, kEye, kFang, kBand, kAcid, kHead };

// One leg: where it points, how far, how high its knee stands, and how high the foot is held.
struct Leg {
  float Angle;
  float Length;
  float Knee;
  float Foot;
};

// Bands of a lighter colour near the joints.
float LegLight(Touch& touch, float light) {
  const float f = Fraction(touch.Place.Along / 11);
  if (touch.Place.Along > 6 && f < 0.24F) touch.Material = kBand;
  return light;
}

// The rind: pores, and darker seams from pole to pole.
float RindLight(Touch& touch, float light) {
  const float pores = Noise(touch.At * 0.9F);
  const float seam = std::fabs(std::sin(std::atan2(touch.Normal.X, touch.Normal.Y) * 4));
  return light * (0.86F + 0.2F * pores) * (0.8F + 0.2F * SmoothStep(0, 0.4F, seam));
}

Model SpiderModel() {
  Model model;
  model.Add(kLemon, 4)
      .Ball({0, 10, -17}, {13, 12, 14})
      .Limb({0, 11, -27}, {0, 13, -37}, 5.4F, 1.6F);
  model.Add(kShell, 3, 1.5F).Ball({0, -1, 3}, {8, 6.5F, 9}).Limb({0, 0, -3}, {0, 3, -7}, 4.4F, 4);
  model.Add(kHead, 2, 1).Ball({0, 1.5F, 14}, {9.4F, 8, 8.4F});
  // The left hand is the far side; its front leg is raised to strike.
  static constexpr std::array<Leg, 8> kLegs{{{0.62F, 27, 17, 6},
                                             {1.0F, 22, 11, -17},
                                             {0.2F, 24, 13, -17},
                                             {-0.45F, 28, 12, -16},
                                             {2.45F, 19, 15, -8},
                                             {2.8F, 28, 21, -19},
                                             {3.5F, 26, 8, -16},
                                             {4.1F, 36, 22, -14}}};
  for (size_t i = 0; i < kLegs.size(); ++i) {
    const Leg& leg = kLegs[i];
    const Vec out = Around(leg.Angle, 1, 0, 1);
    const float row = static_cast<float>(i % 4);
    const Vec root{out.X > 0 ? 5.0F : -5.0F, -2, 5 - 3.2F * row};
    model.Add(kShell, 1, 0.6F)
        .Chain(
            {{root, 2.3F},
             {root + out * (leg.Length * 0.36F) + Vec{0, leg.Knee * 0.9F, 0}, 2.5F},
             {root + out * (leg.Length * 0.62F) + Vec{0, leg.Knee * 0.55F, 0}, 1.9F},
             {root + out * (leg.Length * 0.86F) + Vec{0, Mix(leg.Knee * 0.5F, leg.Foot, 0.6F), 0},
              1.5F},
             {root + out * leg.Length + Vec{0, leg.Foot, 0}, 0.6F}},
            5, {0, 0, 1});
  }
  model.AddPair(kEye)
      .Ball({4.0F, 3.2F, 20.6F}, {3.7F, 3.9F, 2.6F})
      .Ball({8.2F, 4.6F, 17}, {2, 2, 2})
      .Ball({2.8F, 8.6F, 17.6F}, {1.9F, 1.8F, 1.7F});
  model.AddPair(kHead, 1, 0.5F).Limb({3.6F, -3, 18.6F}, {4.4F, -7.4F, 22.4F}, 3.2F, 2.5F);
  model.AddPair(kFang).Limb({4.4F, -7.4F, 22.6F}, {1.8F, -14.5F, 23}, 2.2F, 0.3F);
  model.Add(kAcid).Leaf({-1.8F, -14.6F, 22.6F}, {-1.8F, -19, 22.6F}, 1.5F, 1.5F);
  model.Finish();
  return model;
}

}  // namespace

Image PaintSpider() {
  std::vector<Material> m(7);
  m[kShell] = {
      {0x181024, 0x2C1C3C, 0x483058, 0x6C4C74, 0x987494, 0xD0ACB8}, 0.3F, 0.4F, 0, LegLight};
  m[kLemon] = {
      {0x5C3410, 0x986010, 0xD09C10, 0xF0CC20, 0xF8EC58, 0xF8F8B8}, 0.5F, 0.3F, 0.02F, RindLight};
  m[kEye] = {{0x700010, 0xE02018, 0xFC7038, 0xFCE8C0}, 0.9F, 0.1F, 0.25F};
  m[kFang] = {{0x5C5048, 0xB8A888, 0xF4ECC8}, 0.3F};
  m[kBand] = {{0x583410, 0x987018, 0xD8B030, 0xF4DC60}};
  m[kAcid] = {{0x4C8418, 0xA0D830, 0xE8F888}, 0.6F, 0.2F, 0.2F};
  m[kHead] = {{0x241430, 0x503060, 0x80568C, 0xB488B4, 0xE4C4DC}, 0.3F, 0.3F, 0.08F};
  View view = MonsterView(0.8F, 0.38F);
  view.Height = 50;
  Sprite sprite = Render(SpiderModel(), m, view);
  CastShadow(sprite, ShadowBelow(sprite, 0.85F));
  return PairSheet(sprite, 128, 50, 64);
}

}  // namespace orvane::paint
