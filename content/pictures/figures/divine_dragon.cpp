// The divine dragon: a golden serpent with a jade mane, coiled over clouds about its pearl. Unlike
// the others it is laid out as it is seen: x to the right, y up, z toward the viewer.
#include "content/pictures/figures/dragon_parts.h"
#include "content/pictures/figures/figures.h"
#include "content/pictures/figures/shadow.h"

namespace orvane::paint {
namespace {

constexpr Vec kSide{0, 0, -1};  // turns the belly to the inside of the loops
constexpr int kCloud = kDragonMembrane;
constexpr int kMane = kDragonPlate;
constexpr int kPearl = kDragonFire;

const std::vector<Knot>& Spine() {
  static const std::vector<Knot> kSpine{
      {{-66, 104, -34}, 2}, {{-56, 84, -34}, 4.5F},  {{-64, 54, -32}, 7},   {{-56, 22, -30}, 9.5F},
      {{-16, -2, -30}, 12}, {{32, -16, -26}, 14.5F}, {{58, -46, -18}, 16},  {{44, -80, -2}, 17.5F},
      {{4, -92, 14}, 19},   {{-38, -82, 24}, 20},    {{-52, -50, 26}, 20},  {{-30, -20, 22}, 19.5F},
      {{4, 0, 18}, 18.5F},  {{22, 28, 14}, 16.5F},   {{10, 58, 14}, 14.5F}, {{0, 84, 18}, 13},
      {{12, 102, 26}, 12}};
  return kSpine;
}

void AddLeg(Model& model, Vec hip, Vec knee, Vec palm, Vec ahead, Vec across, Vec curl) {
  model.Add(kDragonSkin, 6, 6).Limb(hip, knee, 12, 8.5F).Limb(knee, palm, 8, 5.6F);
  model.Add(kMane, 1, 1)
      .Limb(knee, knee + (knee - palm) * 0.5F + Vec{-8, 8, 0}, 5, 0.5F)
      .Limb(knee, knee + (knee - palm) * 0.3F + Vec{-10, -2, 0}, 4, 0.5F);
  AddHand(model, {palm, ahead, across, curl, 1.15F, 4});
}

void AddLegs(Model& model) {
  // The near forefoot holds the pearl up.
  AddLeg(model, {10, 30, 26}, {38, 14, 38}, {50, 32, 42}, {0.3F, 0.9F, 0.2F}, {0.9F, -0.3F, 0.2F},
         {0.2F, 0.95F, 0.1F});
  model.Add(kPearl).Ball({56, 52, 46}, {12, 12, 12});
  AddLeg(model, {22, 44, -2}, {46, 62, -8}, {64, 54, 0}, {0.8F, -0.5F, 0.2F}, {0.3F, 0.6F, 0.7F},
         {0.5F, -0.8F, 0});
  AddLeg(model, {-44, -72, 34}, {-62, -86, 48}, {-46, -102, 54}, {0.9F, -0.2F, 0.4F},
         {-0.2F, 0.2F, 0.95F}, {0.6F, -0.8F, 0.1F});
  AddLeg(model, {46, -66, 8}, {66, -82, 22}, {58, -104, 30}, {0.8F, -0.5F, 0.3F},
         {-0.3F, 0.2F, 0.9F}, {0.5F, -0.85F, 0.1F});
}

// A lock of the mane from its root along a wave.
void AddLock(Model& model, Vec root, Vec tip, float sway, float thickness) {
  const Vec run = tip - root;
  const Vec off = Unit(Vec{-run.Y, run.X, 0}) * sway;
  model.Add(kMane, 1.2F, 0.5F)
      .Chain({{root, thickness},
              {Mix(root, tip, 0.35F) + off, thickness * 0.95F},
              {Mix(root, tip, 0.72F) - off * 0.6F, thickness * 0.6F},
              {tip, 0.4F}},
             5);
}

void AddHead(Model& model) {
  const Frame frame{{27, 103, 36}, 0.98F, 0.06F, 0, 1.42F};
  // The mane first, behind the skull.
  struct Lock {
    Vec Root;
    Vec Tip;
    float Sway;
  };
  static const std::vector<Lock> kLocks{
      {{14, 112, 26}, {-30, 116, 18}, 5}, {{12, 106, 30}, {-38, 100, 22}, -5},
      {{8, 100, 30}, {-36, 82, 22}, 5},   {{8, 94, 32}, {-28, 66, 24}, -4},
      {{10, 88, 34}, {-16, 54, 28}, 4},   {{18, 114, 20}, {-16, 124, 10}, 3},
      {{14, 90, 38}, {-4, 58, 38}, -4}};
  for (const Lock& lock : kLocks) AddLock(model, lock.Root, lock.Tip, lock.Sway, 6.4F);
  model.Enter(frame);
  model.Add(kDragonSkin, 4.5F, 4)
      .Ball({0, 0, 0}, {9.4F, 9, 11})
      .Limb({0, 0, 6}, {0, -1, 24}, 7.4F, 5.4F)
      .Ball({0, 1, 27}, {6.4F, 4.6F, 5});
  model.AddPair(kDragonSkin, 2, 2)
      .Ball({3.6F, 3.6F, 28}, {2.6F, 2.4F, 2.8F})
      .Ball({6.8F, -3, 4}, {4, 4, 6});
  model.Add(kDragonSkin, 3, 2.5F)
      .Limb({0, -8, 1}, {0, -14, 11}, 5.8F, 4.6F)
      .Limb({0, -14, 11}, {0, -17.6F, 22}, 4.6F, 3.4F);
  model.Add(kDragonMouth, 1)
      .Limb({0, -6, 4}, {0, -10, 11}, 5.8F, 4.2F)
      .Limb({0, -10, 11}, {0, -13, 20}, 3, 2);
  model.Add(kDragonMouth, 1)
      .Chain({{{0, -10, 11}, 2.6F}, {{0, -10, 20}, 2.2F}, {{0, -7, 26}, 1.6F}, {{0, -8, 31}, 0.5F}},
             3);
  model.AddPair(kDragonTooth)
      .Limb({5.4F, -4, 14}, {5.2F, -8.4F, 14.6F}, 1.8F, 0.4F)
      .Limb({5.2F, -4, 19}, {5, -7.6F, 19.6F}, 1.6F, 0.4F)
      .Limb({4.4F, -3.4F, 25}, {4.4F, -10.4F, 26}, 2.1F, 0.4F)
      .Limb({3, -16, 21}, {3.4F, -10.4F, 22}, 1.9F, 0.3F)
      .Limb({4.2F, -14.6F, 14}, {4.6F, -10, 14.6F}, 1.6F, 0.3F);
  model.AddPair(kDragonEye).Ball({6.6F, 2.6F, 10}, {3, 2.9F, 3.9F});
  model.AddPair(kDragonPupil).Ball({8.9F, 2.5F, 11.6F}, {1.2F, 2.4F, 1.1F});
  model.AddPair(kDragonMouth).Ball({3.8F, 3.4F, 31}, {1.5F, 1.4F, 1.5F});
  model.AddPair(kDragonSkin, 1, 1.5F).Limb({4.6F, 5.2F, 14}, {8, 6, 8}, 1.6F, 1.8F);
  // Brows like flames, antlers, whiskers, beard.
  model.AddPair(kMane, 1, 1)
      .Limb({3, 5.8F, 14}, {8, 8.4F, 7}, 2, 2.4F)
      .Limb({8, 8.4F, 7}, {13, 14, -1}, 2.4F, 0.4F);
  model.AddPair(kDragonHorn, 1)
      .Chain(
          {{{4.6F, 7, -2}, 3.2F}, {{7, 14, -8}, 2.6F}, {{8, 22, -14}, 2.2F}, {{11, 30, -24}, 0.5F}},
          5)
      .Limb({7.4F, 16, -10}, {12, 23, -4}, 2, 0.4F)
      .Limb({8.4F, 23, -15}, {6, 33, -13}, 1.9F, 0.4F);
  model.AddPair(kDragonSkin, 1, 1.5F).Leaf({8, 2, -4}, {18, 6, -14}, 3, 1.4F, {0, 1, 0.3F});
  model.AddPair(kMane, 0.8F)
      .Chain({{{6, -0.5F, 29}, 1.7F},
              {{11, 3, 36}, 1.5F},
              {{15, -3, 44}, 1.3F},
              {{17, -18, 44}, 1.1F},
              {{22, -30, 40}, 0.9F},
              {{20, -42, 43}, 0.3F}},
             5);
  model.Add(kMane, 1, 0.5F)
      .Chain({{{0, -18, 16}, 3}, {{0, -24, 17}, 2.4F}, {{1, -31, 14}, 0.4F}}, 3)
      .Chain({{{0, -16, 10}, 3}, {{-1, -23, 9}, 2.4F}, {{0, -30, 5}, 0.4F}}, 3);
  model.Leave();
}

void AddTailTuft(Model& model) {
  AddLock(model, {-64, 100, -34}, {-70, 134, -34}, 4, 5);
  AddLock(model, {-62, 98, -34}, {-44, 132, -34}, -4, 5);
  AddLock(model, {-64, 98, -34}, {-58, 126, -30}, 3, 4.4F);
}

void AddClouds(Model& model) {
  struct Puff {
    Vec At;
    float Size;
  };
  static const std::vector<Puff> kPuffs{
      {{-60, -104, 30}, 9}, {{-46, -108, 40}, 11}, {{-28, -109, 46}, 10}, {{-12, -106, 44}, 12},
      {{8, -109, 46}, 10},  {{26, -107, 40}, 11},  {{42, -110, 34}, 8},   {{58, -107, 20}, 9.5F},
      {{68, -110, 10}, 7},  {{-68, -110, 20}, 7},  {{-22, -66, -30}, 10}, {{0, -70, -34}, 12},
      {{20, -66, -40}, 9},  {{-4, -60, -40}, 9},   {{-70, -92, -10}, 9},  {{72, -96, -30}, 10}};
  Group& clouds = model.Add(kCloud, 3, 0);
  for (const Puff& puff : kPuffs)
    clouds.Ball(puff.At - Vec{0, 3, -6}, {puff.Size * 1.4F, puff.Size * 1.15F, puff.Size});
}

Model DivineDragonModel() {
  Model model;
  model.Add(kDragonSkin, 8, 4).Chain(Spine(), 6, kSide);
  AddSpines(model, Curve(Spine(), 5), kSide, 13, 5.0F, kMane);
  AddTailTuft(model);
  AddLegs(model);
  AddClouds(model);
  AddHead(model);
  model.Finish();
  return model;
}

}  // namespace

Image PaintDivineDragon() {
  std::vector<Material> m(kDragonMaterials);
  m[kDragonSkin] = {{0x2C1424, 0x5C2C20, 0x90501C, 0xC08020, 0xE0AC34, 0xF4D460, 0xF8F0A8},
                    0.4F,
                    0.35F,
                    0,
                    Scales(9, kDragonBelly, 9)};
  m[kDragonBelly] = {{0x481C30, 0x84343C, 0xBC6450, 0xE49C74, 0xF4CCA4, 0xF8F0A8}, 0.15F};
  m[kCloud] = {{0x584C88, 0x8C84B8, 0xBCB8DC, 0xE0E0F0, 0xF8F8F8}, 0, 0.3F, 0.08F};
  m[kDragonHorn] = {
      {0x3C2434, 0x78505C, 0xBC948C, 0xECD4BC, 0xF8F8EC}, 0.4F, 0.3F, 0, Rings(3, 0.2F)};
  m[kDragonEye] = {{0xBCB8DC, 0xE0F8F8, 0xF8F8F8}, 0.5F, 0, 0.4F};
  m[kDragonPupil] = {{0xC01828}};
  m[kDragonMouth] = {{0x481C30, 0x84182C, 0xD04450}, 0.3F};
  m[kDragonTooth] = {{0x948468, 0xECE4C4, 0xF8F8F0}, 0.2F, 0.2F, 0.25F};
  m[kMane] = {{0x0C2438, 0x104C5C, 0x1C7C7C, 0x3CB098, 0x88DCBC, 0xE0F8E4}, 0.25F, 0.4F};
  m[kPearl] = {{0x2C60B8, 0x54A0E8, 0x98DCF8, 0xE0F8F8, 0xF8F8F8}, 0.9F, 0.6F, 0.2F};
  View view = DragonView(160, 240, 0, 0.08F);
  view.Room = 14;  // its cloud floats
  Sprite sprite = Render(DivineDragonModel(), m, view);
  CastShadow(sprite, ShadowBelow(sprite, 0.84F, 7));
  return PairSheet(sprite, 320, 240, 160);
}

}  // namespace orvane::paint
