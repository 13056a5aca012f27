// The envoy of the moon: a hovering robe without a face, a crescent at its back and on its staff.
#include "content/pictures/figures/figures.h"
#include "content/pictures/figures/monster.h"
#include "content/pictures/figures/shadow.h"

namespace orvane::paint {
namespace {

enum Stuff { kRobe, kLining, kVoid, kMoon, kWood, kHand };

constexpr float kPi = 3.14159265F;

void AddRobe(Model& model) {
  Group& robe = model.Add(kRobe, 3, 2);
  robe.Limb({0, 8, 0}, {0, -6, 0}, 6.4F, 8);
  // Folds that fray into points of uneven length.
  for (int i = 0; i < 10; ++i) {
    const float n = static_cast<float>(i);
    const float a = n * 0.628F + 0.2F;
    const float deep = -25 - 4 * std::sin(n * 2.1F);
    robe.Chain({{Around(a, 5, 0, 4.5F), 4},
                {Around(a, 9, -13, 7.5F), 3.8F},
                {Around(a + 0.1F, 12, -21, 9.5F) + Vec{-2, 0, -1}, 3.0F},
                {Around(a + 0.2F, 13, deep, 10) + Vec{-5, 0, -3}, 0.7F}},
               3);
  }
  model.Add(kRobe, 2, 2)
      .Ball({0, 9, 0}, {9.6F, 4.6F, 7})
      .Ball({-7, 8, 0}, {4.6F, 4, 4.6F})
      .Ball({7, 8, 0}, {4.6F, 4, 4.6F});
}

void AddSleeve(Model& model, Vec shoulder, Vec elbow, Vec hand) {
  model.Add(kRobe, 2, 2)
      .Limb(shoulder, elbow, 4, 3.8F)
      .Limb(elbow, hand, 3.6F, 4.6F)
      .Limb(hand, hand + Vec{0, -6, -2}, 4, 1);
  const Vec out = Unit(hand - elbow);
  model.Add(kVoid).Limb(hand + out * 2, hand + out * 3.2F, 3.6F, 3.0F);
  model.Add(kHand, 0.5F).Ball(hand + out * 5.4F, {2.2F, 2.2F, 2.2F});
}

Model MoonModel() {
  Model model;
  model.Add(kMoon, 0.5F)
      .Chain(Crescent({0, 12, -8}, {21, 0, 0}, {0, 21, 0}, -1.3F * kPi, 0.3F * kPi, 4.2F), 3,
             {0, 0, 1});
  AddRobe(model);
  AddSleeve(model, {-8, 8, 1}, {-13, -1, 4}, {-10, -3, 12});
  AddSleeve(model, {8, 8, 1}, {14, 1, 4}, {14, 3, 15});
  // The hood, its peak drooping to the back.
  model.Add(kRobe, 2.5F, 1.5F)
      .Ball({0, 19, 0}, {7.6F, 8, 7.6F})
      .Chain({{{0, 24, -2}, 5}, {{0, 29, -6}, 3}, {{0, 30, -12}, 0.8F}}, 3);
  model.Add(kMoon, 0.5F).Ring({0, 18, 5.2F}, {5.9F, 0, 0}, {0, 6.6F, 1}, 0.9F);
  model.Add(kVoid).Ball({0, 18, 4.2F}, {5.4F, 6.2F, 4.4F});
  model.Add(kLining, 1).Leaf({0, 6, 8.6F}, {0, -22, 10}, 3.4F, 1.6F);
  model.Add(kMoon).Chain(
      Crescent({0, 4.5F, 9.4F}, {2.6F, 0, 0}, {0, 2.6F, 0}, -1.2F * kPi, 0.2F * kPi, 0.8F), 2,
      {0, 0, 1});
  // The staff in the far hand.
  model.Add(kWood, 0.5F).Limb({14.6F, -27, 17}, {14.2F, 18, 22}, 1.1F, 1.1F);
  model.Add(kMoon, 0.5F)
      .Chain(Crescent({14.2F, 25, 22.6F}, {0, 0, 7}, {0, 7, 0}, -1.3F * kPi, 0.3F * kPi, 1.9F), 3,
             {1, 0, 0})
      .Ball({14.2F, 24.6F, 22.6F}, {1.9F, 1.9F, 1.9F});
  model.Finish();
  return model;
}

}  // namespace

Image PaintMoonEnvoy() {
  std::vector<Material> m(6);
  m[kRobe] = {{0x14122C, 0x241F4C, 0x3A3478, 0x5650A4, 0x8480CC, 0xBCC0EC}, 0.1F, 0.45F};
  m[kLining] = {{0x3C1440, 0x682460, 0x9C4084, 0xD07CAC}, 0, 0.2F};
  m[kVoid] = {{0x08060F, 0x120D20}, 0, 0};
  m[kMoon] = {{0x6C4818, 0xB88828, 0xE8C850, 0xF8F0A8, 0xF8F8E0}, 0.5F, 0.4F, 0.12F};
  m[kWood] = {{0x2C1820, 0x583430, 0x906048}};
  m[kHand] = {{0x384868, 0x6C8CA8, 0xB4D0DC}, 0, 0.2F};
  View view = HoverView(0.55F, 0.06F, 6);
  view.Margin = 3;
  Sprite sprite = Render(MoonModel(), m, view);
  const std::vector<uint32_t> eyes{0xF8F080, 0xF8A830};
  StampAt(sprite, {-2.4F, 18.4F, 8}, {"YO", "OO"}, "YO", eyes);
  StampAt(sprite, {2.6F, 18.4F, 8}, {"YO", "OO"}, "YO", eyes);
  CastShadow(sprite, ShadowBelow(sprite));
  return PairSheet(sprite, 128, 64, 64);
}

}  // namespace orvane::paint
