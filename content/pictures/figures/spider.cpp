// The sour spider: a lemon for an abdomen and eight long violet legs.
#include <array>

#include "content/pictures/figures/figures.h"
#include "content/pictures/figures/monster.h"
#include "content/pictures/figures/shadow.h"

namespace orvane::paint {
namespace {

enum Stuff { kShell, kLemon, kEye, kFang, kBand, kAcid };

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
      .Ball({0, 10, -16}, {14.5F, 13, 15})
      .Limb({0, 13, -26}, {0, 17, -35}, 6, 2.2F);
  model.Add(kShell, 3, 1.5F)
      .Ball({0, -1, 3}, {8, 6.5F, 9})
      .Ball({0, 0.5F, 13}, {7.2F, 6, 6.6F})
      .Limb({0, 0, -3}, {0, 3, -7}, 4.4F, 4);
  // The left hand is the far side; its front leg is raised to strike.
  static constexpr std::array<Leg, 8> kLegs{{{0.62F, 32, 17, 4},
                                             {1.15F, 26, 12, -17},
                                             {0.3F, 27, 13, -17},
                                             {-0.45F, 32, 12, -16},
                                             {2.3F, 22, 13, -17},
                                             {2.75F, 30, 12, -18},
                                             {3.2F, 35, 16, -19},
                                             {3.8F, 37, 20, -17}}};
  for (size_t i = 0; i < kLegs.size(); ++i) {
    const Leg& leg = kLegs[i];
    const Vec out = Around(leg.Angle, 1, 0, 1);
    const float row = static_cast<float>(i % 4);
    const Vec root{out.X > 0 ? 5.0F : -5.0F, -2, 9 - 3.4F * row};
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
      .Ball({3.0F, 2.4F, 18.6F}, {2.9F, 3.0F, 2.1F})
      .Ball({6.2F, 3.0F, 15.8F}, {1.6F, 1.6F, 1.6F})
      .Ball({2.2F, 6.6F, 15.4F}, {1.5F, 1.4F, 1.3F});
  model.AddPair(kShell, 1, 0.5F).Limb({3, -3, 17}, {3.6F, -7, 20.4F}, 2.7F, 2.1F);
  model.AddPair(kFang).Limb({3.6F, -7, 20.6F}, {1.6F, -13.5F, 21}, 1.8F, 0.3F);
  model.Add(kAcid).Leaf({-1.6F, -14, 20.4F}, {-1.6F, -18.4F, 20.4F}, 1.5F, 1.5F);
  model.Finish();
  return model;
}

}  // namespace

Image PaintSpider() {
  std::vector<Material> m(6);
  m[kShell] = {
      {0x181024, 0x2C1C3C, 0x483058, 0x6C4C74, 0x987494, 0xD0ACB8}, 0.3F, 0.4F, 0, LegLight};
  m[kLemon] = {
      {0x5C3410, 0x986010, 0xD09C10, 0xF0CC20, 0xF8EC58, 0xF8F8B8}, 0.5F, 0.3F, 0.02F, RindLight};
  m[kEye] = {{0x700010, 0xE02018, 0xFC7038, 0xFCE8C0}, 0.9F, 0.1F, 0.25F};
  m[kFang] = {{0x5C5048, 0xB8A888, 0xF4ECC8}, 0.3F};
  m[kBand] = {{0x583410, 0x987018, 0xD8B030, 0xF4DC60}};
  m[kAcid] = {{0x4C8418, 0xA0D830, 0xE8F888}, 0.6F, 0.2F, 0.2F};
  View view = MonsterView(0.55F, 0.24F);
  view.Height = 50;
  Sprite sprite = Render(SpiderModel(), m, view);
  CastShadow(sprite, ShadowUnder(sprite));
  return PairSheet(sprite, 128, 50, 64);
}

}  // namespace orvane::paint
