// The two ropers: a green column of tentacles, and its dark cousin with a skull for a face.
#include <array>

#include "content/pictures/figures/figures.h"
#include "content/pictures/figures/monster.h"
#include "content/pictures/figures/shadow.h"

namespace orvane::paint {
namespace {

enum Stuff { kBody, kEye, kMouth, kTooth, kTip };

// A tentacle: where it leaves the body, how far it reaches, where its tip ends.
struct Feeler {
  float Angle;
  float Height;
  float Reach;
  float TipHeight;
  float Curl;
};

void AddFeeler(Model& model, const Feeler& feeler, float thickness, float root, bool bud_at_tip) {
  const Vec out = Around(feeler.Angle, 1, 0, 0.85F);
  const Vec side{-out.Z, 0, out.X};
  const Vec up{0, 1, 0};
  const float rise = feeler.TipHeight - feeler.Height;
  const Vec base = up * feeler.Height;
  const Vec tip = base + out * feeler.Reach + up * rise;
  model.Add(kBody, 1, 1.5F)
      .Chain({{base + out * root, thickness},
              {base + out * (feeler.Reach * 0.55F) + up * (rise * 0.1F - 2), thickness * 0.85F},
              {base + out * (feeler.Reach * 0.95F) + up * (rise * 0.45F), thickness * 0.7F},
              {tip, thickness * 0.55F},
              {tip + side * feeler.Curl - out * 3 + up * 3, thickness * 0.4F},
              {tip + side * feeler.Curl * 1.2F - out * 6 + up * 0.5F, thickness * 0.2F}},
             4, {0, 1, 0});
  if (!bud_at_tip) return;
  const Vec bud = tip + side * feeler.Curl - out * 3 + up * 3;
  model.Add(kTip, 0.5F).Ball(bud, {3, 3, 3});
}

void AddTeeth(Model& model) {
  Group& teeth = model.Add(kTooth);
  for (const float x : {-5.0F, 0.2F, 5.4F}) {
    const float z = 13.4F - 0.06F * x * x;
    teeth.Limb({x, -3.6F, z}, {x * 0.95F, -8.6F, z + 0.8F}, 1.8F, 0.3F);
  }
  for (const float x : {-2.6F, 3.0F}) {
    teeth.Limb({x, -12.6F, 13}, {x, -8.8F, 13.6F}, 1.6F, 0.3F);
  }
}

Model GreenRoperModel() {
  Model model;
  model.Add(kBody, 4, 2)
      .Limb({0, -20, 0}, {0, -6, 0}, 13, 10.5F)
      .Limb({0, -6, 0}, {0, 12, 0}, 10.5F, 8.5F)
      .Limb({0, 12, 0}, {-1, 19, 0}, 8, 5);
  Group& roots = model.Add(kBody, 1.5F, 3);
  for (int i = 0; i < 7; ++i) {
    const float a = 0.5F + static_cast<float>(i) * 0.9F;
    roots.Chain({{Around(a, 8, -20, 7), 5},
                 {Around(a, 16, -25, 14), 4},
                 {Around(a + 0.15F, 22, -27, 19), 2.6F},
                 {Around(a + 0.35F, 25, -28, 22), 1.2F}},
                3, {0, 1, 0});
  }
  static constexpr std::array<Feeler, 8> kFeelers{{{2.9F, 4, 24, 22, 4},
                                                   {2.3F, -4, 25, 4, -4},
                                                   {3.6F, -6, 25, -2, 4},
                                                   {0.2F, 3, 24, 14, -4},
                                                   {-0.35F, 8, 22, 27, 3},
                                                   {0.75F, -7, 23, -4, -4},
                                                   {4.4F, 10, 15, 29, 4},
                                                   {3.2F, 12, 13, 33, -4}}};
  for (const Feeler& feeler : kFeelers) AddFeeler(model, feeler, 3.6F, 6, true);
  model.Add(kBody, 1, 2).Ring({0, 7.5F, 8.6F}, {6.6F, 0, 0}, {0, 5.8F, 0}, 1.7F);
  model.Add(kEye).Ball({0, 7.5F, 8}, {5.8F, 5, 3.6F});
  model.Add(kMouth).Ball({0, -8, 9}, {8.6F, 5.6F, 4.4F});
  AddTeeth(model);
  model.Finish();
  return model;
}

Model DeathRoperModel() {
  Model model;
  model.Add(kBody, 4, 2).Limb({0, -10, 0}, {0, 6, 0}, 11, 13).Ball({0, 10, -1}, {14, 12, 13});
  // It hangs in the air on its longest tentacles.
  static constexpr std::array<Feeler, 10> kFeelers{{{2.8F, 2, 27, 14, 4},
                                                    {2.2F, -4, 27, -6, -4},
                                                    {3.7F, -5, 26, -12, 4},
                                                    {0.1F, 0, 27, 10, -4},
                                                    {-0.5F, 5, 24, 22, 3},
                                                    {0.9F, -8, 22, -18, -4},
                                                    {1.6F, -12, 13, -27, 4},
                                                    {1.1F, -12, 12, -30, -3},
                                                    {2.3F, -12, 14, -29, 3},
                                                    {3.3F, -11, 15, -27, -4}}};
  for (const Feeler& feeler : kFeelers) AddFeeler(model, feeler, 3.4F, 7, false);
  Group& thorns = model.Add(kTip);
  for (int i = 0; i < 7; ++i) {
    const float a = -0.6F + static_cast<float>(i) * 0.72F;
    const float high = 17 + 2 * std::sin(a * 3);
    thorns.Limb(Around(a, 9, high, 8), Around(a, 15, high + 10, 13), 2.4F, 0.3F);
  }
  model.Add(kTooth, 1.5F)
      .Ball({0, 8, 8}, {9.4F, 8.6F, 6.4F})
      .Ball({0, 0, 9}, {6.4F, 4.4F, 5})
      .Ball({-6, 3.4F, 10}, {3, 2.2F, 2.6F})
      .Ball({6, 3.4F, 10}, {3, 2.2F, 2.6F});
  model.AddPair(kMouth).Ball({4, 6.4F, 13.4F}, {2.9F, 3.2F, 2});
  model.Add(kMouth).Leaf({0, 3.4F, 14.4F}, {0, 0.6F, 14}, 1.2F, 1.2F);
  Group& grin = model.Add(kMouth);
  for (int i = -2; i <= 2; ++i) {
    const float x = static_cast<float>(i) * 2.1F;
    grin.Limb({x, -0.6F, 14 - 0.14F * x * x}, {x, -3.8F, 13.6F - 0.14F * x * x}, 0.6F, 0.6F);
  }
  model.AddPair(kEye).Ball({3.8F, 6.2F, 15}, {1.3F, 1.3F, 0.9F});
  model.Finish();
  return model;
}

}  // namespace

Image PaintGreenRoper() {
  std::vector<Material> m(5);
  m[kBody] = {{0x0C102C, 0x10284C, 0x105058, 0x208848, 0x60C438, 0xB4F048, 0xF4FCB0},
              0.45F,
              0.35F,
              0,
              Rings(3, 0.34F)};
  m[kEye] = {{0x6C3010, 0xD87818, 0xFCD84C, 0xF8F8D0}, 0.6F, 0, 0.2F};
  m[kMouth] = {{0x180410, 0x400C20, 0x802038}};
  m[kTooth] = {{0x807860, 0xD8D0B0, 0xF8F8E8}, 0, 0.2F, 0.2F};
  m[kTip] = {{0x5C1038, 0xB02860, 0xF06C88, 0xF8C4B8}, 0.4F, 0.2F, 0.1F};
  Sprite sprite = Render(GreenRoperModel(), m, MonsterView(0.5F, 0.16F));
  StampAt(sprite, {0.6F, 7.2F, 11.6F}, {".KK.", "KKWK", "KKKK", ".KK."}, "KW",
          {0x200810, 0xF8F8F0});
  CastShadow(sprite, ShadowUnder(sprite));
  return PairSheet(sprite, 128, 64, 64);
}

Image PaintDeathRoper() {
  std::vector<Material> m(5);
  m[kBody] = {{0x100818, 0x24102C, 0x3C1844, 0x5C2458, 0x883864, 0xBC5C74, 0xECA098},
              0.4F,
              0.6F,
              0.06F,
              Rings(3.2F, 0.3F)};
  m[kEye] = {{0xA81018, 0xF83828, 0xFCC070}, 0.3F, 0, 0.5F};
  m[kMouth] = {{0x100410, 0x28081C, 0x401028}};
  m[kTooth] = {{0x40343C, 0x7C6C64, 0xB8A888, 0xE4D8B4, 0xF8F4E0}, 0.1F, 0.2F};
  m[kTip] = {{0x38101C, 0x781C24, 0xC03C2C, 0xF08850}, 0.3F};
  Sprite sprite = Render(DeathRoperModel(), m, HoverView(0.5F, 0.08F, 7));
  CastShadow(sprite, ShadowBelow(sprite));
  return PairSheet(sprite, 128, 64, 64);
}

}  // namespace orvane::paint
