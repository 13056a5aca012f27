// The fire dragon: the winged terror, rearing up, with a mane and a tail of flames.
#include "content/pictures/figures/dragon_parts.h"
#include "content/pictures/figures/figures.h"
#include "content/pictures/figures/shadow.h"

namespace orvane::paint {
namespace {

const std::vector<Knot>& Spine() {
  static const std::vector<Knot> kSpine{
      {{0, -72, -16}, 20},   {{0, -50, -6}, 26}, {{0, -20, 6}, 26},
      {{0, 6, 6}, 22},       {{0, 26, -4}, 15},  {{0, 44, -13}, 12},
      {{0, 62, -12}, 10.5F}, {{0, 76, 1}, 10},   {{0, 82, 16}, 9.5F}};
  return kSpine;
}

void AddTail(Model& model) {
  const std::vector<Knot> tail{{{0, -74, -22}, 19},     {{14, -98, -44}, 14},
                               {{2, -108, -72}, 11},    {{-30, -106, -74}, 8.5F},
                               {{-52, -96, -60}, 6.5F}, {{-47, -76, -48}, 4.6F},
                               {{-57, -56, -44}, 2.6F}};
  model.Add(kDragonSkin, 4, 6).Chain(tail, 5);
  AddSpines(model, Curve(tail, 2), {1, 0, 0}, 5, 2.4F);
  Group& fire = model.Add(kDragonFire, 2);
  fire.Chain(
      {{{-58, -60, -48}, 5}, {{-59, -46, -46}, 7}, {{-53, -32, -46}, 5}, {{-57, -18, -46}, 0.4F}},
      4);
  fire.Chain({{{-58, -58, -48}, 4}, {{-67, -46, -44}, 4.4F}, {{-69, -32, -44}, 0.4F}}, 4);
  fire.Chain({{{-56, -56, -48}, 4}, {{-47, -48, -46}, 3.6F}, {{-45, -36, -44}, 0.4F}}, 4);
}

void AddLimbs(Model& model) {
  // The near arm reaches out, the far one is drawn back.
  model.Add(kDragonSkin, 7, 7)
      .Limb({-20, 8, 6}, {-30, 0, 8}, 13, 12)
      .Limb({-30, 0, 8}, {-40, -20, 12}, 11, 8)
      .Limb({-40, -20, 12}, {-34, -22, 38}, 8, 5.6F);
  AddHand(model,
          {{-33, -22, 40}, {0.1F, -0.25F, 0.96F}, {0.9F, 0.3F, 0}, {0.1F, -0.95F, 0.3F}, 1.15F, 4});
  model.Add(kDragonSkin, 7, 7)
      .Limb({20, 8, 6}, {29, 4, 8}, 13, 11.5F)
      .Limb({29, 4, 8}, {40, -8, 20}, 10.5F, 7.5F)
      .Limb({40, -8, 20}, {36, 0, 36}, 7.5F, 5.6F);
  AddHand(model, {{36, 1, 38}, {0, 0.5F, 0.86F}, {0.95F, -0.2F, 0}, {0, -0.5F, 0.86F}, 1.1F, 4});
  for (const float side : {-1.0F, 1.0F}) {
    const float ahead = side < 0 ? 10.0F : -4.0F;
    model.Add(kDragonSkin, 7, 7)
        .Limb({18 * side, -62, -4}, {31 * side, -76, 22 + ahead}, 20, 14.5F)
        .Limb({31 * side, -78, 22 + ahead}, {30 * side, -100, 0 + ahead}, 12, 8)
        .Limb({30 * side, -100, 0 + ahead}, {31 * side, -109, 20 + ahead}, 8, 7);
    AddHand(model, {{31 * side, -109, 20 + ahead},
                    {0.1F * side, -0.08F, 0.99F},
                    {1, 0, 0},
                    {0, -0.5F, 0.86F},
                    1.4F,
                    3});
  }
}

void AddHead(Model& model) {
  model.Enter({{0, 86, 24}, 0.12F, 0.16F, 0, 1.36F});
  model.Add(kDragonSkin, 4.5F, 4)
      .Ball({0, 0, 0}, {9, 8.5F, 11})
      .Limb({0, 1, 6}, {0, 0, 25}, 7, 4.8F);
  model.AddPair(kDragonSkin, 3, 3)
      .Limb({5.2F, 6, -1}, {4, 4.8F, 12}, 2.8F, 1.7F)
      .Limb({7, -4, -2}, {6, -4, 6}, 4, 3)
      .Ball({2.7F, 3.2F, 26}, {2.4F, 2.3F, 2.8F});
  model.Add(kDragonSkin, 2, 2)
      .Limb({0, -7, 0}, {0, -14, 10}, 5.6F, 4.3F)
      .Limb({0, -14, 10}, {0, -19, 21}, 4.3F, 3);
  model.Add(kDragonMouth, 1)
      .Limb({0, -6, 3}, {0, -9.6F, 10}, 5.6F, 4)
      .Limb({0, -9.6F, 10}, {0, -14, 19}, 2.8F, 1.8F);
  model.Add(kDragonMouth, 1)
      .Chain({{{0, -9, 10}, 2.4F}, {{0, -11, 20}, 2}, {{0.5F, -9, 27}, 1.4F}, {{1, -11, 31}, 0.5F}},
             3);
  model.AddPair(kDragonEye).Ball({6.2F, 2.6F, 9.4F}, {2.5F, 2.3F, 3.2F});
  model.AddPair(kDragonPupil).Ball({7.9F, 2.5F, 10.4F}, {1.1F, 2.1F, 0.9F});
  model.AddPair(kDragonTooth)
      .Limb({5, -3.4F, 15}, {4.8F, -8, 15.6F}, 1.8F, 0.4F)
      .Limb({4.4F, -3.4F, 20}, {4.2F, -7.6F, 20.6F}, 1.7F, 0.4F)
      .Limb({3, -3.6F, 25}, {3, -11, 26}, 2.1F, 0.4F)
      .Limb({2.6F, -17, 19.5F}, {3, -11, 20.6F}, 1.8F, 0.3F)
      .Limb({3.4F, -14, 14}, {3.8F, -9.6F, 14.6F}, 1.6F, 0.3F);
  model.AddPair(kDragonHorn, 1)
      .Chain(
          {{{5, 6, -3}, 3.8F}, {{8, 13, -12}, 3.2F}, {{11, 15, -24}, 2.3F}, {{12, 24, -35}, 0.4F}},
          5)
      .Chain({{{8, -2, -5}, 2.6F}, {{13, -2, -13}, 1.9F}, {{16, 2, -21}, 0.3F}}, 4);
  model.Add(kDragonHorn).Limb({0, 3.6F, 25}, {0, 10, 28}, 2, 0.3F);
  model.Leave();
}

// Flames stream from the nape and down the neck.
void AddMane(Model& model) {
  const std::vector<Knot> neck =
      Curve({Spine()[3], Spine()[4], Spine()[5], Spine()[6], Spine()[7], Spine()[8]}, 2);
  Group& fire = model.Add(kDragonFire, 2.5F);
  for (size_t i = 1; i < neck.size(); ++i) {
    const Vec run = Unit(neck[i].At - neck[i - 1].At);
    const Vec back = Unit(Cross({1, 0, 0}, run)) * -1;
    const Vec root = neck[i].At + back * (neck[i].Radius - 3);
    const float long_lick = i % 2 == 0 ? 34.0F : 22.0F;
    const Vec tip = root + back * long_lick + Vec{0, 14, 0};
    fire.Chain({{root, 6},
                {Mix(root, tip, 0.45F) - Vec{0, 3, 0}, 5},
                {Mix(root, tip, 0.8F), 2.6F},
                {tip + Vec{0, 4, 0}, 0.3F}},
               4);
  }
}

Model FireDragonModel() {
  Model model;
  model.Add(kDragonSkin, 8, 5).Chain(Spine(), 4);
  model.AddPair(kDragonSkin, 7, 7).Ball({12, 2, 12}, {13, 12, 10});
  AddTail(model);
  AddLimbs(model);
  AddWing(model, {{-14, 18, -14},
                  {-30, 58, -36},
                  {-32, 110, -40},
                  {Vec{-46, 146, -56}, {-66, 106, -62}, {-64, 52, -54}, {-48, 2, -44}},
                  {-13, -34, -22},
                  {-4, 7, 0},
                  5});
  AddWing(model, {{14, 18, -14},
                  {44, 54, -20},
                  {66, 108, -10},
                  {Vec{76, 148, -30}, {114, 110, -20}, {108, 58, -30}, {74, 10, -42}},
                  {13, -30, -22},
                  {4, 7, 0},
                  -5});
  AddMane(model);
  AddHead(model);
  model.Finish();
  return model;
}

}  // namespace

Image PaintFireDragon() {
  std::vector<Material> m(kDragonMaterials);
  m[kDragonSkin] = {
      {0x2A0F1E, 0x4A1424, 0x741C28, 0x9C2A28, 0xC2402A, 0xDC6434, 0xF09450, 0xFCCC84},
      0.18F,
      0.35F,
      0,
      Scales(5, kDragonBelly, 8)};
  m[kDragonBelly] = {{0x4A2A24, 0x7A4A30, 0xA87440, 0xD0A058, 0xECCA80, 0xF8F0B8}, 0.1F};
  m[kDragonMembrane] = {
      {0x24102A, 0x3E1838, 0x602444, 0x86384C, 0xAC5454, 0xD07C60}, 0, 0.3F, 0, Membrane(2)};
  m[kDragonHorn] = {
      {0x30282C, 0x5C5048, 0x8E8068, 0xC4B890, 0xF4ECC8}, 0.4F, 0.3F, 0, Rings(2.6F, 0.2F)};
  m[kDragonEye] = {{0x7C5C00, 0xF0D020, 0xF8F8A0}, 0.5F, 0, 0.35F};
  m[kDragonPupil] = {{0x100408}};
  m[kDragonMouth] = {{0x3C0810, 0x801820, 0xC83C3C}, 0.3F};
  m[kDragonTooth] = {{0x8E8068, 0xE4D8B0, 0xF8F8E0}, 0.2F, 0.2F, 0.2F};
  m[kDragonPlate] = m[kDragonHorn];
  m[kDragonFire] = {
      {0x8C1C10, 0xC83C10, 0xF07818, 0xF8B430, 0xF8E468, 0xF8F8C8}, 0, 0, 0, Flames(30)};
  Sprite sprite = Render(FireDragonModel(), m, DragonView(128, 192, 0.66F, 0.12F));
  CastShadow(sprite, ShadowUnder(sprite, 1.12F));
  return PairSheet(sprite, 256, 192, 128);
}

}  // namespace orvane::paint
