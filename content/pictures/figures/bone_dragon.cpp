// The bone dragon: a wyvern's skeleton with shreds of wing and a cold fire between its ribs.
#include "content/pictures/figures/dragon_parts.h"
#include "content/pictures/figures/figures.h"
#include "content/pictures/figures/shadow.h"

namespace orvane::paint {
namespace {

constexpr int kBone = kDragonSkin;
constexpr Vec kSide{1, 0, 0};

// A long bone: a thin shaft between two pairs of knobs.
void AddBone(Model& model, Vec a, Vec b, float thickness) {
  const Vec run = Unit(b - a);
  const Vec across = Unit(Cross(run, {0.2F, 0.1F, 1}));
  Group& bone = model.Add(kBone, thickness * 0.8F);
  bone.Limb(a, b, thickness * 0.58F, thickness * 0.5F);
  for (const float s : {-0.55F, 0.55F}) {
    const Vec off = across * (thickness * s);
    bone.Ball(a + off, {thickness * 0.9F, thickness * 0.9F, thickness * 0.9F});
    bone.Ball(b + off, {thickness * 0.8F, thickness * 0.8F, thickness * 0.8F});
  }
}

// Vertebrae on a curve: bodies, spines to the back, and wings to both sides.
void AddVertebrae(Model& model, const std::vector<Knot>& curve, float spine_length) {
  Group& bodies = model.Add(kBone, 1);
  for (size_t i = 0; i + 1 < curve.size(); ++i) {
    const Vec at = curve[i].At;
    const float r = curve[i].Radius;
    const Vec run = Unit(curve[i + 1].At - at);
    const Vec back = Unit(Cross(kSide, run)) * -1;
    const Vec across = Unit(Cross(run, back));
    bodies.Limb(at - run * (r * 0.25F), at + run * (r * 0.25F), r, r);
    bodies.Limb(at + back * (r * 0.6F),
                at + back * (r * 0.8F + spine_length * r * 0.2F) - run * (r * 0.8F), r * 0.5F,
                0.5F);
    for (const float s : {-1.0F, 1.0F})
      bodies.Limb(at, at + across * (s * r * 1.7F) - run * (r * 0.4F), r * 0.5F, r * 0.25F);
  }
  std::vector<Knot> cord = curve;
  for (Knot& knot : cord) knot.Radius *= 0.6F;
  model.Add(kDragonMouth).Chain(cord, 1);
}

std::vector<Knot> Back(int steps) {
  return Curve({{{0, -58, -28}, 8},
                {{0, -30, -36}, 8.5F},
                {{0, 0, -30}, 8.5F},
                {{0, 28, -14}, 8},
                {{0, 46, 2}, 7.4F}},
               steps);
}

std::vector<Knot> Neck() {
  return Curve({{{0, 46, 2}, 7.4F},
                {{0, 64, 6}, 7},
                {{0, 84, -6}, 6.6F},
                {{0, 104, -10}, 6.2F},
                {{0, 118, 6}, 6}},
               3);
}

void AddTail(Model& model) {
  AddVertebrae(model,
               Curve({{{0, -62, -30}, 7},
                      {{-6, -86, -40}, 6.4F},
                      {{-24, -101, -44}, 5.6F},
                      {{-50, -103, -40}, 4.8F},
                      {{-72, -94, -34}, 4},
                      {{-84, -78, -30}, 3.2F},
                      {{-84, -58, -30}, 2.4F}},
                     2),
               9);
  model.Add(kDragonHorn)
      .Limb({-84, -60, -32}, {-82, -38, -32}, 3.4F, 0.4F)
      .Limb({-84, -62, -32}, {-94, -48, -32}, 2.8F, 0.4F)
      .Limb({-83, -62, -32}, {-72, -50, -32}, 2.8F, 0.4F);
}

void AddRibs(Model& model) {
  const std::vector<Knot> back = Back(2);
  const float last = static_cast<float>(back.size() - 3);
  for (size_t i = 2; i + 1 < back.size(); ++i) {
    const float t = static_cast<float>(i - 2) / last;
    const float wide = 17 + 13 * std::sin(0.4F + 2.1F * t);
    const Vec at = back[i].At;
    const Vec low{0, -16 + 6 * t, 26 + 8 * t};
    Group& ribs = model.AddPair(kBone, 1);
    ribs.Chain({{at + Vec{4, 0, 0}, 2.6F},
                {at + Vec{wide, -2, 8}, 2.4F},
                {at + Vec{wide * 1.05F, -9, 22} + low * 0.2F, 2.2F},
                {at + Vec{wide * 0.62F, -6, 30} + low * 0.4F, 2},
                {at + Vec{5, -2, 34} + low * 0.42F, 1.8F}},
               5);
  }
  // The ribs meet in a keel, deepest near the throat, that ends in a point below.
  std::vector<Knot> bar;
  std::vector<Knot> edge;
  for (size_t i = 2; i + 1 < back.size(); ++i) {
    const float t = static_cast<float>(i - 2) / last;
    const Vec low{0, -16 + 6 * t, 26 + 8 * t};
    const Vec at = back[i].At + Vec{0, -2, 35} + low * 0.42F;
    if (i == 2) bar.push_back({at + Vec{0, -13, -3}, 1});
    bar.push_back({at, 3.2F});
    edge.push_back({at + Vec{0, -1, 2 + 6 * t}, 1.4F});
  }
  model.Add(kBone, 3, 1).Chain(bar, 4).Chain(edge, 4);
  Group& fire = model.Add(kDragonFire, 4);
  fire.Chain(
      {{{0, -24, 4}, 6}, {{2, -8, 4}, 11}, {{-2, 10, 6}, 9}, {{3, 28, 8}, 5}, {{-1, 48, 8}, 0.4F}},
      4);
  fire.Chain({{{-6, -14, 6}, 6}, {{-13, 4, 8}, 6}, {{-9, 18, 10}, 3.6F}, {{-14, 34, 10}, 0.4F}}, 4);
  fire.Chain({{{7, -12, 4}, 6}, {{13, 4, 6}, 5.6F}, {{10, 16, 8}, 3}, {{14, 29, 8}, 0.4F}}, 4);
}

void AddLegs(Model& model) {
  model.Add(kBone, 4)
      .Ball({-12, -60, -24}, {7, 12, 12})
      .Ball({12, -60, -24}, {7, 12, 12})
      .Limb({-10, -56, -26}, {10, -56, -26}, 6, 6);
  for (const float side : {-1.0F, 1.0F}) {
    const float ahead = side < 0 ? 14.0F : -2.0F;
    const Vec hip{17 * side, -60, -20};
    const Vec knee{30 * side, -72, 14 + ahead};
    const Vec heel{29 * side, -98, -8 + ahead};
    const Vec foot{31 * side, -110, 12 + ahead};
    AddBone(model, hip, knee, 7);
    AddBone(model, knee, heel, 5.6F);
    AddBone(model, heel, foot, 4.6F);
    AddHand(model, {foot, {0.1F * side, -0.06F, 0.99F}, {1, 0, 0}, {0, -0.5F, 0.86F}, 1.3F, 3});
  }
}

// A wing of bones; the skin is left in rags near the fingers.
void AddRaggedWing(Model& model, Vec shoulder, Vec elbow, Vec wrist, const std::array<Vec, 4>& tips,
                   Vec bow) {
  AddBone(model, shoulder, elbow, 6);
  AddBone(model, elbow, wrist, 5);
  model.Add(kDragonHorn).Limb(wrist, wrist + Vec{0, 15, 5}, 3, 0.3F);
  Group& fingers = model.Add(kBone, 0.8F);
  for (const Vec& tip : tips) {
    const Vec joint = Mix(wrist, tip, 0.5F) + bow;
    fingers.Chain({{wrist, 3.2F}, {joint, 2.2F}, {tip, 0.7F}}, 5);
    fingers.Ball(joint, {3.2F, 3.2F, 3.2F});
  }
  Group& rags = model.Add(kDragonMembrane);
  constexpr std::array<float, 3> kLeft{0.86F, 0.62F, 0.74F};
  for (size_t i = 0; i + 1 < tips.size(); ++i) {
    const Vec a = Mix(wrist, tips[i], kLeft[i]) + bow * 0.6F;
    const Vec b = Mix(wrist, tips[i + 1], kLeft[2 - i]) + bow * 0.6F;
    const Vec middle = Mix(a, b, 0.45F) + (wrist - a) * 0.12F;
    rags.Panel(wrist, a, middle, 0.34F, 2, 0.6F).Panel(wrist, middle, b, 0.42F, 2, 0.6F);
  }
  rags.Panel(elbow, wrist, Mix(elbow, tips[3], 0.5F), 0.3F, 0, 0.6F);
}

void AddSkull(Model& model) {
  model.Enter({{0, 122, 20}, 0.14F, 0.22F, 0, 1.5F});
  model.Add(kBone, 3)
      .Ball({0, 1, -2}, {9, 7.6F, 9})
      .Limb({0, 0.4F, 6}, {0, -1.6F, 26}, 6.4F, 4.2F)
      .Ball({0, -1, 28}, {4.6F, 3, 3});
  model.AddPair(kBone, 2, 2)
      .Limb({4.6F, 5.6F, 1}, {4.4F, 4, 13}, 2.4F, 1.4F)
      .Limb({7.6F, -3, -2}, {5.4F, -2.6F, 12}, 2, 1.6F)
      .Limb({7, -2, -6}, {6, -11, -3}, 2.6F, 2.2F);
  // Lower jaw, a fork of bone.
  model.AddPair(kBone, 1.5F)
      .Limb({6, -10, -3}, {4.6F, -15.6F, 10}, 2.6F, 2.2F)
      .Limb({4.6F, -15.6F, 10}, {1.6F, -19.6F, 23}, 2.2F, 2);
  model.AddPair(kDragonMouth)
      .Ball({6, 1.6F, 7.4F}, {3, 3, 4})
      .Leaf({2, 2.2F, 24}, {3.6F, 1.6F, 29}, 1.6F, 1.6F, {1, 0, 0});
  model.AddPair(kDragonEye).Ball({7.2F, 1.6F, 8.4F}, {2, 1.9F, 2.2F});
  Group& teeth = model.AddPair(kDragonTooth);
  for (int i = 0; i < 5; ++i) {
    const float z = 9 + static_cast<float>(i) * 4.5F;
    const float x = 5.4F - static_cast<float>(i) * 0.5F;
    teeth.Limb({x, -3.4F, z}, {x, i == 4 ? -11.0F : -7.6F, z + 0.8F}, 1.6F, 0.3F);
    if (i < 4)
      teeth.Limb({x - 1.2F, -14.6F - static_cast<float>(i) * 1.3F, z + 1},
                 {x - 1, -10 - static_cast<float>(i) * 1.2F, z + 1.6F}, 1.4F, 0.3F);
  }
  model.AddPair(kDragonHorn, 1)
      .Chain(
          {{{5.4F, 6, -5}, 3.6F}, {{10, 12, -13}, 3}, {{15, 11, -24}, 2.3F}, {{17, 18, -34}, 0.4F}},
          5)
      .Chain({{{7, 0, -8}, 2.6F}, {{13, -3, -14}, 2}, {{17, -1, -22}, 0.4F}}, 4);
  model.Leave();
}

Model BoneDragonModel() {
  Model model;
  AddVertebrae(model, Back(3), 9);
  AddVertebrae(model, Neck(), 6);
  AddTail(model);
  AddRibs(model);
  AddLegs(model);
  AddRaggedWing(model, {-16, 36, -10}, {-32, 68, -34}, {-32, 118, -40},
                {Vec{-52, 152, -56}, {-72, 106, -60}, {-72, 46, -54}, {-54, 0, -48}}, {-4, 6, 0});
  AddRaggedWing(model, {16, 36, -10}, {54, 56, -12}, {84, 102, -2},
                {Vec{104, 140, -24}, {122, 92, -12}, {110, 42, -20}, {82, 4, -32}}, {4, 6, 0});
  model.AddPair(kBone, 3).Limb({4, 40, -2}, {16, 36, -8}, 5, 6);
  AddSkull(model);
  model.Finish();
  return model;
}

}  // namespace

Image PaintBoneDragon() {
  std::vector<Material> m(kDragonMaterials);
  m[kBone] = {{0x2C2038, 0x54405C, 0x846C74, 0xB49C88, 0xD8C8A4, 0xF0E8CC, 0xF8F8EC},
              0.2F,
              0.4F,
              0.04F,
              Mottle(5, 0.12F)};
  m[kDragonMembrane] = {
      {0x180C24, 0x2C1838, 0x48284C, 0x683C5C, 0x8C5868}, 0, 0.3F, 0, Membrane(2)};
  m[kDragonHorn] = {
      {0x1C1828, 0x3C3448, 0x68586C, 0xA08C94, 0xDCD0C8}, 0.4F, 0.35F, 0, Rings(3, 0.3F)};
  m[kDragonEye] = {{0x18A8A8, 0x38CCC0, 0x80ECD8, 0xD0F8E8}, 0.3F, 0, 0.15F};
  m[kDragonMouth] = {{0x140A1C, 0x2C1834, 0x4C2C48}};
  m[kDragonTooth] = {{0x846C74, 0xE0D4B4, 0xF8F8EC}, 0.2F, 0.2F, 0.2F};
  m[kDragonFire] = {
      {0x083850, 0x0C6C80, 0x18A8A8, 0x38CCC0, 0x80ECD8, 0xD0F8E8}, 0, 0, 0, Flames(34)};
  m[kDragonBelly] = m[kDragonPlate] = m[kDragonPupil] = m[kBone];
  View view = DragonView(160, 240, 0.66F, 0.1F);
  view.Contour = 5;
  view.Folds = 10;
  Sprite sprite = Render(BoneDragonModel(), m, view);
  CastShadow(sprite, ShadowUnder(sprite, 1.12F));
  return PairSheet(sprite, 318, 240, 160);
}

}  // namespace orvane::paint
