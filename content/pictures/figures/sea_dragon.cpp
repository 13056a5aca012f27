// The sea dragon: a finned swan-neck rising from the coil of its own fish tail.
#include "content/pictures/figures/dragon_parts.h"
#include "content/pictures/figures/figures.h"
#include "content/pictures/figures/monster.h"
#include "content/pictures/figures/shadow.h"

namespace orvane::paint {
namespace {

const std::vector<Knot>& Spine() {
  static const std::vector<Knot> kSpine{{{0, -98, -8}, 22}, {{0, -74, -16}, 26}, {{0, -44, -8}, 27},
                                        {{0, -14, 6}, 24},  {{0, 12, 4}, 17},    {{0, 36, -12}, 13},
                                        {{0, 60, -22}, 11}, {{0, 82, -16}, 10},  {{0, 96, 2}, 9.5F},
                                        {{0, 98, 16}, 9}};
  return kSpine;
}

// Around the front, along the far side to the back, and up again to the fluke.
void AddTail(Model& model) {
  const std::vector<Knot> tail{{{-6, -100, -12}, 22},    {{-30, -106, 12}, 17},
                               {{-12, -108, 44}, 14.5F}, {{30, -108, 44}, 12},
                               {{50, -106, 6}, 10},      {{34, -104, -40}, 9},
                               {{-4, -98, -62}, 8},      {{-34, -76, -60}, 6.6F},
                               {{-40, -44, -52}, 5},     {{-36, -22, -50}, 3.6F}};
  model.Add(kDragonSkin, 8, 6).Chain(tail, 6, {0, 1, 0});
  const Vec root{-36, -24, -50};
  AddFin(model, {{root, {-70, 6, -40}}, {root, {-62, 24, -48}}, {root, {-46, 14, -50}}}, 2.6F,
         0.16F);
  AddFin(model, {{root, {-46, 14, -50}}, {root, {-22, 30, -54}}, {root, {-8, 16, -56}}}, 2.6F,
         0.16F);
}

// The sail runs from the crown down to the small of the back.
void AddSail(Model& model) {
  const std::vector<Knot> line = Curve({Spine().begin() + 2, Spine().end() - 1}, 2);
  const Vec lean{-0.5F, 0, 0};  // toward the viewer, or the sail would be seen edge on
  std::vector<Ray> rays;
  for (size_t i = 1; i + 1 < line.size(); ++i) {
    const Vec run = Unit(line[i + 1].At - line[i - 1].At);
    const Vec back = Unit(Cross({1, 0, 0}, run)) * -1;
    const float t = static_cast<float>(i) / static_cast<float>(line.size() - 1);
    const float high = 14 + 120 * t * (1 - t) * (1.2F - 0.4F * t);
    rays.push_back(
        {line[i].At + back * (line[i].Radius - 2),
         line[i].At + back * (line[i].Radius + high) + run * (6 - 26 * t) + lean * high});
  }
  AddFin(model, rays, 2.0F, 0.10F);
}

void AddFlippers(Model& model) {
  // Near: swept back and low; far: raised ahead.
  model.Add(kDragonSkin, 6, 7)
      .Limb({-20, -2, 8}, {-34, -14, 6}, 13, 9)
      .Limb({-34, -14, 6}, {-44, -30, 4}, 8.5F, 5.5F);
  const Vec near{-43, -28, 4};
  AddFin(model,
         {{near, {-52, -24, 40}},
          {near, {-62, -52, 32}},
          {near, {-68, -70, 12}},
          {near, {-66, -72, -12}},
          {near, {-56, -58, -28}}},
         3.2F, 0.12F);
  model.Add(kDragonSkin, 6, 7)
      .Limb({20, -2, 8}, {36, -6, 14}, 13, 9)
      .Limb({36, -6, 14}, {46, 4, 24}, 8.5F, 5.5F);
  const Vec far{45, 3, 23};
  AddFin(model,
         {{far, {52, 40, 20}},
          {far, {62, 36, 36}},
          {far, {66, 20, 50}},
          {far, {60, -4, 54}},
          {far, {54, -20, 44}}},
         3.2F, 0.12F);
}

void AddHead(Model& model) {
  model.Enter({{0, 102, 22}, 0.1F, 0.2F, 0, 1.3F});
  model.Add(kDragonSkin, 5, 5)
      .Ball({0, 0, 0}, {8.6F, 8, 11})
      .Limb({0, 0.6F, 5}, {0, -1.4F, 30}, 6.6F, 4.2F)
      .Ball({0, -0.6F, 31}, {5, 3.2F, 4});
  model.AddPair(kDragonSkin, 3, 2.5F)
      .Limb({4.8F, 5.6F, -2}, {4, 4.6F, 11}, 2.8F, 1.6F)
      .Ball({3, 2, 31}, {1.9F, 1.8F, 2.2F});
  model.Add(kDragonBelly, 2, 2)
      .Limb({0, -6, 0}, {0, -11, 14}, 5.6F, 4)
      .Limb({0, -11, 14}, {0, -13.6F, 28}, 4, 3);
  model.Add(kDragonMouth, 1)
      .Limb({0, -5, 4}, {0, -7.4F, 14}, 5, 3.4F)
      .Limb({0, -7.4F, 14}, {0, -9.6F, 26}, 2.8F, 1.8F);
  Group& teeth = model.AddPair(kDragonTooth);
  for (int i = 0; i < 4; ++i) {
    const float z = 14 + static_cast<float>(i) * 5.4F;
    const float x = 4.8F - static_cast<float>(i) * 0.5F;
    teeth.Limb({x, -3, z}, {x, i == 3 ? -9.4F : -6.8F, z + 0.8F}, 1.6F, 0.3F);
    if (i < 3) teeth.Limb({x - 0.8F, -10.6F, z + 2}, {x - 0.6F, -6.8F, z + 2.6F}, 1.4F, 0.3F);
  }
  model.AddPair(kDragonEye).Ball({6, 2.4F, 8.6F}, {2.5F, 2.4F, 3.2F});
  model.AddPair(kDragonPupil).Ball({7.8F, 2.4F, 9.6F}, {1, 2.1F, 0.9F});
  // Frills of the jaw, crest of the brow, barbels.
  for (const float s : {-1.0F, 1.0F}) {
    const Vec root{7 * s, -1, -3};
    AddFin(model,
           {{root, {17 * s, 19, -14}},
            {root, {24 * s, 11, -19}},
            {root, {26 * s, -1, -20}},
            {root, {20 * s, -12, -16}}},
           1.9F, 0.16F);
    model.Add(kDragonMembrane, 0.5F)
        .Chain({{{4 * s, -2, 32}, 1.4F},
                {{10 * s, -8, 36}, 1.1F},
                {{13 * s, -18, 34}, 0.9F},
                {{11 * s, -26, 36}, 0.3F}},
               4);
    model.Add(kDragonHorn, 1)
        .Chain({{{5 * s, 6, -4}, 2.8F}, {{8 * s, 12, -12}, 2.2F}, {{9 * s, 21, -16}, 0.4F}}, 4);
  }
  AddFin(model,
         {{{0, 6, 10}, {0, 15, 14}},
          {{0, 7, 4}, {0, 20, 4}},
          {{0, 7, -2}, {0, 21, -8}},
          {{0, 6, -8}, {0, 16, -18}}},
         1.7F, 0.1F);
  model.Leave();
}

Model SeaDragonModel() {
  Model model;
  model.Add(kDragonSkin, 8, 5).Chain(Spine(), 4);
  model.AddPair(kDragonSkin, 7, 7).Ball({12, -14, 14}, {12, 12, 10});
  AddTail(model);
  AddSail(model);
  AddFlippers(model);
  AddHead(model);
  model.Finish();
  return model;
}

// Scales with dark bands over the back, and lights that do not burn out on the wet coil.
Texture SeaSkin() {
  return [scales = Scales(5, kDragonBelly, 8)](Touch& touch, float light) {
    float lit = scales(touch, light);
    // The lower plates get light back from the wet coil, or they would sink into one dark mass.
    if (touch.Material == kDragonBelly) return lit * (1 + 0.5F * SmoothStep(10, -60, touch.At.Y));
    const float back = SmoothStep(0.2F, -0.5F, Dot(touch.Normal, touch.Place.Side));
    const float band = SmoothStep(0.1F, 0.6F, std::sin(touch.Place.Along * 0.30F));
    lit *= 1 - 0.3F * band * (touch.Blend > 7 ? back : 0.0F);
    return lit < 0.6F ? lit : 0.6F + (lit - 0.6F) * 0.7F;
  };
}

}  // namespace

Image PaintSeaDragon() {
  std::vector<Material> m(kDragonMaterials);
  m[kDragonSkin] = {
      {0x0C1830, 0x123050, 0x184C78, 0x226CA0, 0x3890C0, 0x64B8D8, 0xA0DCEC, 0xE4F8F8},
      0.3F,
      0.4F,
      0,
      SeaSkin()};
  m[kDragonBelly] = {
      {0x1C3450, 0x34607C, 0x64949C, 0xA0C4B4, 0xD8E4C8, 0xF8F8E8}, 0.15F, 0.35F, 0.13F};
  m[kDragonMembrane] = {{0x201448, 0x382070, 0x583898, 0x8058B8, 0xB080CC, 0xE4B4DC},
                        0.2F,
                        0.35F,
                        0.05F,
                        Membrane(3)};
  m[kDragonHorn] = {{0x382C20, 0x74583C, 0xB49460, 0xE8D49C, 0xF8F4D8}, 0.4F, 0.3F};
  m[kDragonEye] = {{0x8C3C00, 0xF8A818, 0xF8F080}, 0.5F, 0, 0.35F};
  m[kDragonPupil] = {{0x081020}};
  m[kDragonMouth] = {{0x380C20, 0x7C1C34, 0xC44858}, 0.3F};
  m[kDragonTooth] = {{0x708088, 0xD8E0D8, 0xF8F8F0}, 0.2F, 0.2F, 0.2F};
  m[kDragonPlate] = m[kDragonHorn];
  m[kDragonFire] = m[kDragonHorn];
  View view = DragonView(128, 192, 0.66F, 0.16F);
  Sprite sprite = Render(SeaDragonModel(), m, view);
  CastShadow(sprite, ShadowUnder(sprite, 1.16F));
  return PairSheet(sprite, 256, 192, 128);
}

}  // namespace orvane::paint
