// The cursed mask: a horned ivory face adrift in black hair, with two lost souls.
#include "content/pictures/figures/figures.h"
#include "content/pictures/figures/monster.h"
#include "content/pictures/figures/shadow.h"

namespace orvane::paint {
namespace {

enum Stuff { kIvory, kHorn, kHair, kMouth, kGold, kLip, kFlame };

void AddMask(Model& model) {
  model.Add(kIvory, 3, 0)
      .Ball({0, 3, 0}, {11, 11, 7.4F})
      .Ball({0, -6, 2}, {8, 7.6F, 6})
      .Ball({0, -11, 4}, {4.2F, 3, 3.6F});
  model.AddPair(kIvory, 1.5F, 1.6F)
      .Limb({2, 6, 8}, {8.6F, 10, 5}, 2.4F, 1.6F)  // brows drawn together
      .Ball({6.6F, -2.6F, 6}, {3, 2.4F, 2.2F});    // cheeks
  model.Add(kIvory, 1.5F, 1.2F)
      .Limb({0, 4, 7.6F}, {0, -1.4F, 9.6F}, 1.5F, 2.2F)
      .Ball({1.6F, -1.8F, 8.6F}, {1.4F, 1.2F, 1.4F})
      .Ball({-1.6F, -1.8F, 8.6F}, {1.4F, 1.2F, 1.4F});
  model.AddPair(kMouth).Leaf({1.4F, 1.2F, 7.8F}, {9, 4.4F, 5.4F}, 2.5F, 1.7F);
  model.AddPair(kMouth, 0.5F).Limb({1.0F, 4.4F, 10}, {8.4F, 9.4F, 6.6F}, 1.3F, 0.8F);
  model.AddPair(kGold).Ball({5, 2.6F, 8.4F}, {2.1F, 1.9F, 1.1F});
  // The grin runs from ear to ear.
  model.Add(kLip, 0.6F)
      .Chain({{{-8.4F, -4, 4.4F}, 1.2F},
              {{-5, -8.4F, 7.4F}, 1.9F},
              {{0, -9.6F, 8.6F}, 2},
              {{5, -8.4F, 7.4F}, 1.9F},
              {{8.4F, -4, 4.4F}, 1.2F}},
             3);
  model.Add(kMouth).Chain({{{-7.2F, -4, 6}, 1},
                           {{-4, -6, 8.2F}, 2},
                           {{0, -6.6F, 9}, 2.2F},
                           {{4, -6, 8.2F}, 2},
                           {{7.2F, -4, 6}, 1}},
                          3);
  Group& fangs = model.Add(kGold);
  for (const float x : {-4.2F, -1.5F, 1.5F, 4.2F}) {
    const bool outer = std::fabs(x) > 3;
    fangs.Limb({x, -4.6F, 10 - 0.08F * x * x}, {x, outer ? -8.4F : -6.8F, 10.6F - 0.08F * x * x},
               1.1F, 0.3F);
  }
  model.AddPair(kHorn, 1).Chain({{{5, 11, 2}, 2.8F},
                                 {{8.6F, 17, 1}, 2.3F},
                                 {{11.6F, 22, 1.4F}, 1.6F},
                                 {{10.6F, 28, 3}, 0.3F}},
                                4);
}

void AddHair(Model& model) {
  Group& hair = model.Add(kHair, 1.5F, 0);
  hair.Ball({0, 7, -4}, {11.4F, 10, 7});
  struct Lock {
    float X;
    float Z;
    float Sway;
    float End;
  };
  const Lock locks[] = {{-11, -1, -6, -26},  {-12, -5, -12, -20}, {11, -1, 3, -24},
                        {12, -5, -2, -18},   {-6, -7, -9, -29},   {4, -8, -6, -28},
                        {-13, -3, -13, -11}, {0, -8, -10, -25}};
  for (const Lock& lock : locks) {
    hair.Chain({{{lock.X * 0.7F, 10, lock.Z}, 3.4F},
                {{lock.X * 1.1F, -3, lock.Z}, 3.4F},
                {{lock.X + lock.Sway * 0.3F, -15, lock.Z - 1}, 2.6F},
                {{lock.X + lock.Sway, lock.End, lock.Z - 3}, 0.5F}},
               4);
  }
  // Strands over the brow.
  hair.Chain(
      {{{1, 15, 3}, 2}, {{-5, 12.4F, 6.4F}, 1.6F}, {{-10, 5, 5.6F}, 1.3F}, {{-10.6F, -3, 5}, 0.4F}},
      4);
  hair.Chain(
      {{{2, 15, 3}, 2}, {{6.4F, 12, 6}, 1.5F}, {{10.4F, 5, 4.6F}, 1.2F}, {{10.6F, -1, 4}, 0.4F}},
      4);
}

void AddSoul(Model& model, Vec at, float size) {
  model.Add(kFlame, 1.5F)
      .Ball(at, {size, size, size})
      .Chain({{at, size * 0.9F},
              {at + Vec{-size, size * 1.5F, 0}, size * 0.6F},
              {at + Vec{-size * 0.4F, size * 2.8F, 0}, 0.3F}},
             4);
}

Model HannyaModel() {
  Model model;
  AddMask(model);
  AddHair(model);
  AddSoul(model, {20, -12, 6}, 4);
  AddSoul(model, {-23, 6, 0}, 3.4F);
  model.Finish();
  return model;
}

}  // namespace

Image PaintHannya() {
  std::vector<Material> m(7);
  m[kIvory] = {{0x4C2C38, 0x846058, 0xB89878, 0xDCC8A0, 0xF0E8CC, 0xF8F8EC}, 0.35F, 0.25F, 0.1F};
  m[kHorn] = {{0x38200C, 0x7C5418, 0xC8982C, 0xF0D878}, 0.4F, 0.3F, 0, Rings(2.4F, 0.2F)};
  m[kHair] = {{0x0C0A14, 0x1C1828, 0x38345C, 0x686098}, 0.4F, 0.7F, 0, Strands(1.6F, 0.3F)};
  m[kMouth] = {{0x10040C, 0x30081C}};
  m[kGold] = {{0x805010, 0xE0A820, 0xF8E060, 0xF8F8C0}, 0.5F, 0.1F, 0.3F};
  m[kLip] = {{0x501018, 0x981C24, 0xD83C38}, 0.4F};
  m[kFlame] = {{0x1C2C90, 0x2C68D8, 0x50B8F0, 0xB0F0F8, 0xF0F8F8}, 0, 0.6F, 0.0F};
  Sprite sprite = Render(HannyaModel(), m, HoverView(0.45F, -0.04F, 9));
  StampAt(sprite, {-4.4F, 2.5F, 9.4F}, {"K"}, "K", {0x10040C});
  StampAt(sprite, {5.4F, 2.5F, 9.2F}, {"K"}, "K", {0x10040C});
  CastShadow(sprite, ShadowBelow(sprite));
  return PairSheet(sprite, 128, 64, 64);
}

}  // namespace orvane::paint
