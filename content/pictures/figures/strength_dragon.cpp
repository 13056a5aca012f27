// The dragon of strength: no wings, all shoulders; a horned brute under a shell of spires.
#include "content/pictures/figures/dragon_parts.h"
#include "content/pictures/figures/figures.h"
#include "content/pictures/figures/shadow.h"

namespace orvane::paint {
namespace {

void AddBody(Model& model) {
  model.Add(kDragonSkin, 8, 5)
      .Chain({{{0, -76, -10}, 25},
              {{0, -48, -4}, 29},
              {{0, -12, 2}, 32},
              {{0, 24, 6}, 34},
              {{0, 48, 10}, 26},
              {{0, 62, 22}, 20}},
             4);
  model.AddPair(kDragonSkin, 7, 7).Ball({17, 32, 24}, {17, 14, 13}).Ball({24, 48, 0}, {22, 16, 18});
  // The tail ends in a club.
  model.Add(kDragonSkin, 4, 6)
      .Chain({{{0, -78, -24}, 23},
              {{-4, -98, -48}, 17},
              {{-18, -102, -54}, 13},
              {{-29, -84, -48}, 10},
              {{-28, -58, -40}, 8}},
             5);
  model.Add(kDragonPlate, 2).Ball({-27, -44, -38}, {14, 13, 13});
  Group& knobs = model.Add(kDragonHorn);
  for (int i = 0; i < 6; ++i) {
    const float a = static_cast<float>(i) * 1.05F;
    const Vec out{-0.3F + 0.6F * std::cos(a), std::sin(a), 0.5F * std::cos(a)};
    knobs.Limb(Vec{-27, -44, -38} + out * 10, Vec{-27, -44, -38} + Unit(out) * 24, 4.6F, 0.4F);
  }
}

void AddLegs(Model& model) {
  for (const float side : {-1.0F, 1.0F}) {
    const float ahead = side < 0 ? 12.0F : -2.0F;
    model.Add(kDragonSkin, 7, 7)
        .Limb({19 * side, -66, -2}, {36 * side, -78, 20 + ahead}, 23, 18)
        .Limb({36 * side, -80, 20 + ahead}, {36 * side, -104, 6 + ahead}, 15, 13)
        .Limb({36 * side, -104, 6 + ahead}, {37 * side, -109, 20 + ahead}, 12, 9);
    AddHand(model, {{37 * side, -110, 20 + ahead},
                    {0.1F * side, -0.06F, 0.99F},
                    {1, 0, 0},
                    {0, -0.4F, 0.9F},
                    1.7F,
                    3});
    model.Add(kDragonPlate, 2, 0)
        .Ball({37 * side, -76, 34 + ahead}, {11, 13, 8})
        .Limb({37 * side, -74, 38 + ahead}, {38 * side, -64, 50 + ahead}, 5, 0.5F);
  }
}

// A fist: four fingers folded over the palm, a thumb before them.
void AddFist(Model& model, Vec at, Vec across, Vec ahead, Vec up) {
  model.Add(kDragonSkin, 3, 4).Ball(at, {13, 12, 13});
  Group& fingers = model.Add(kDragonSkin, 1.5F, 1.5F);
  for (int i = 0; i < 4; ++i) {
    const Vec knuckle = at + across * (static_cast<float>(i) * 6.6F - 9.9F) + ahead * 10 + up * 5;
    fingers.Limb(knuckle, knuckle - up * 8 + ahead * 2.4F, 4.6F, 4.2F);
  }
  fingers.Limb(at + across * -11 + ahead * 4, at + across * 1 + ahead * 13 - up * 7, 4.6F, 3.8F);
}

void AddArms(Model& model) {
  model.Enter({{0, 18, 0}});
  // The near arm hangs ready, the far fist is raised beside the head, clear of the snout.
  model.Add(kDragonSkin, 7, 7)
      .Ball({-42, 26, 4}, {19, 19, 19})
      .Limb({-42, 24, 4}, {-54, -8, 6}, 17, 14)
      .Limb({-54, -10, 6}, {-50, -40, 24}, 17, 12)
      .Ball({-55, 10, 10}, {13, 15, 12});
  AddFist(model, {-49, -54, 32}, {-0.9F, 0, 0.3F}, {0.2F, -0.3F, 0.93F}, {0, 0.95F, 0.3F});
  model.Add(kDragonSkin, 7, 7)
      .Ball({42, 28, 4}, {18, 18, 18})
      .Limb({42, 28, 6}, {68, 16, 18}, 16, 13)
      .Limb({68, 16, 18}, {69, 52, 26}, 15, 11)
      .Ball({58, 26, 16}, {12, 12, 12});
  AddFist(model, {69, 66, 30}, {-0.9F, 0, 0.3F}, {-0.2F, 0.2F, 0.96F}, {0, 0.98F, -0.2F});
  // Shoulder plates and bracers with studs.
  for (const float side : {-1.0F, 1.0F}) {
    Group& plate = model.Add(kDragonPlate, 3, 0);
    plate.Ball({45 * side, 38, 0}, {19, 12, 19}).Ball({51 * side, 30, 0}, {16, 11, 18});
    Group& spikes = model.Add(kDragonHorn);
    spikes.Limb({46 * side, 46, 4}, {56 * side, 66, 4}, 6.4F, 0.5F);
    spikes.Limb({56 * side, 38, 8}, {74 * side, 48, 10}, 5.4F, 0.5F);
  }
  model.Add(kDragonPlate, 2).Limb({-53.4F, -16, 10}, {-51, -33, 20}, 18, 14.5F);
  model.Add(kDragonPlate, 2).Limb({68, 24, 20}, {69, 45, 24.6F}, 16, 13);
  model.Leave();
}

// A gladiator's harness: straps that cross on the breast under a gem, and a belt with another.
void AddHarness(Model& model) {
  model.AddPair(kDragonMembrane, 2, 0)
      .Chain({{{30, 52, 30}, 4},
              {{14, 34, 43}, 4},
              {{0, 14, 42}, 4},
              {{-16, -6, 35}, 4},
              {{-27, -24, 22}, 4},
              {{-32, -40, 4}, 4}},
             4);
  model.Add(kDragonMembrane, 2, 0).Ring({0, -46, -3}, {31, 0, 0}, {0, 0, 31}, 5);
  for (const Vec& at : {Vec{0, 14, 44}, Vec{0, -46, 29}}) {
    model.Add(kDragonPlate, 1).Ball(at, {11, 11, 5});
    model.Add(kDragonFire).Ball(at + Vec{0, 0, 3}, {6, 6, 4});
  }
  Group& studs = model.AddPair(kDragonPlate);
  for (const Vec& at :
       {Vec{14, 34, 46}, Vec{-16, -6, 38.5F}, Vec{-26, -22, 26}, Vec{17, -46, 26}}) {
    studs.Ball(at, {2.6F, 2.6F, 2.6F});
  }
}

// Spires of horn in two rows along the back.
void AddShell(Model& model) {
  model.Enter({{0, 20, 0}});
  Group& shell = model.Add(kDragonPlate, 4, 0);
  shell.Ball({0, 20, -18}, {34, 28, 20})
      .Ball({0, -22, -22}, {30, 28, 18})
      .Ball({0, -56, -24}, {24, 20, 16});
  Group& spires = model.Add(kDragonHorn, 1);
  for (int i = 0; i < 5; ++i) {
    const float n = static_cast<float>(i);
    const float high = 44 - n * 24;
    const float reach = 52 - n * 5;
    for (const float x : {-24.0F, 20.0F}) {
      const Vec root{x * (1 - n * 0.06F), high, -26 - 3 * std::sin(n)};
      spires.Limb(root, root + Vec{x * 0.6F, reach * (0.95F - n * 0.12F), -reach * 0.62F},
                  8.4F - n * 0.7F, 0.6F);
    }
  }
  model.Leave();
}

void AddHead(Model& model) {
  model.Enter({{0, 70, 44}, 0.08F, 0.08F, 0, 1.6F});
  model.Add(kDragonSkin, 5, 6)
      .Ball({0, 0, -4}, {12, 11, 13})
      .Limb({0, -2, 4}, {0, -4, 18}, 9.4F, 8);
  model.AddPair(kDragonSkin, 3, 3).Ball({4, -2.4F, 24}, {3, 2.6F, 3}).Ball({9, -8, 2}, {5, 6, 8});
  // The jaw juts out, its tusks reach up.
  model.Add(kDragonSkin, 3, 2.5F)
      .Limb({0, -14, 2}, {0, -17, 18}, 9.6F, 7.4F)
      .Ball({0, -16, 23}, {6, 4, 4});
  model.Add(kDragonMouth, 1).Limb({0, -10.4F, 6}, {0, -11.4F, 21}, 7.4F, 5);
  model.AddPair(kDragonTooth, 0.5F)
      .Chain({{{7, -13, 17}, 2.8F}, {{8.6F, -6, 20}, 2.2F}, {{8.4F, 1, 20}, 0.4F}}, 4)
      .Limb({4, -13, 23}, {4, -8.6F, 24}, 1.6F, 0.4F)
      .Limb({7, -13, 11}, {7.4F, -8.6F, 11.6F}, 1.8F, 0.4F);
  // A mask of plates, ram's horns, and the great horn of the nose.
  model.Add(kDragonPlate, 2, 0)
      .Ball({0, 7.6F, 1}, {10, 5, 10})
      .Limb({0, 5.6F, 10}, {0, 2.6F, 20}, 5, 4);
  model.AddPair(kDragonPlate, 1).Limb({3, 6.4F, 12}, {10.6F, 7, 5}, 2.6F, 2.4F);
  model.Add(kDragonHorn, 1).Chain({{{0, 5, 18}, 5}, {{0, 13, 23}, 3.8F}, {{0, 23, 24}, 0.5F}}, 5);
  model.AddPair(kDragonHorn, 1)
      .Chain({{{9, 8, -4}, 5.4F},
              {{18, 13, -9}, 5},
              {{25, 7, -8}, 4.2F},
              {{25, -4, -1}, 3.2F},
              {{20, -8, 8}, 2},
              {{17, -4, 14}, 0.4F}},
             5);
  model.AddPair(kDragonEye).Ball({7.0F, 2.4F, 10}, {2.9F, 2.2F, 3.2F});
  model.AddPair(kDragonPupil).Ball({9.1F, 2.4F, 11.6F}, {0.9F, 1.8F, 0.9F});
  model.Leave();
}

Model StrengthDragonModel() {
  Model model;
  AddBody(model);
  AddLegs(model);
  AddShell(model);
  AddArms(model);
  AddHarness(model);
  AddHead(model);
  model.Finish();
  return model;
}

}  // namespace

Image PaintStrengthDragon() {
  std::vector<Material> m(kDragonMaterials);
  m[kDragonSkin] = {
      {0x180F24, 0x2C1C3C, 0x443058, 0x5E4670, 0x7C6288, 0xA084A0, 0xC8AEBC, 0xECDCD8},
      0.22F,
      0.4F,
      0,
      Scales(7, kDragonBelly, 11)};
  m[kDragonBelly] = {
      {0x382430, 0x604440, 0x907058, 0xBC9C74, 0xDCC49C, 0xF4E8C8}, 0.15F, 0.35F, 0.13F};
  // The harness: leather, and gems of red glass.
  m[kDragonMembrane] = {{0x20101C, 0x481C20, 0x743028, 0xA85438, 0xD8905C}, 0.3F, 0.3F};
  m[kDragonFire] = {{0x500414, 0xA80C1C, 0xE8382C, 0xF8906C, 0xF8E8D0}, 0.9F, 0.1F, 0.1F};
  m[kDragonHorn] = {
      {0x34202C, 0x644838, 0xA07C50, 0xD4B478, 0xF4E4B4}, 0.45F, 0.35F, 0, Rings(4, 0.25F)};
  m[kDragonEye] = {{0x841408, 0xF05018, 0xF8D060}, 0.4F, 0, 0.45F};
  m[kDragonPupil] = {{0x180408}};
  m[kDragonMouth] = {{0x28060C, 0x601420, 0xA02C34}, 0.2F};
  m[kDragonTooth] = {{0x8C7858, 0xE0D0A0, 0xF8F4D8}, 0.3F, 0.2F, 0.15F};
  m[kDragonPlate] = {{0x2C1810, 0x583414, 0x885818, 0xB88424, 0xE0B444, 0xF4DC80, 0xF8F4C8},
                     0.55F,
                     0.4F,
                     0,
                     Mottle(9, 0.14F)};
  Sprite sprite = Render(StrengthDragonModel(), m, DragonView(128, 192, 0.6F, 0.12F));
  CastShadow(sprite, ShadowUnder(sprite, 1.12F));
  return PairSheet(sprite, 256, 192, 128);
}

}  // namespace orvane::paint
