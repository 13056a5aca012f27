// The retching slime: a heap of sallow mire with stalked eyes and a dripping mouth.
#include <array>

#include "content/pictures/figures/figures.h"
#include "content/pictures/figures/monster.h"
#include "content/pictures/figures/shadow.h"

namespace orvane::paint {
namespace {

enum Stuff { kMire, kEye, kMouth, kTongue, kTooth, kBubble };

Model SlimeModel() {
  Model model;
  Group& heap = model.Add(kMire, 5, 3);
  heap.Ball({0, -20, 0}, {25, 5, 20}).Ball({0, -12, -1}, {18, 11, 15});
  heap.Ball({-3, -2, -2}, {12, 12, 10}).Ball({-5, 7, -3}, {8, 8, 7});
  for (int i = 0; i < 9; ++i) {
    const float a = static_cast<float>(i) * 0.7F + 0.3F;
    const float reach = 25 + 4 * std::sin(static_cast<float>(i) * 2.3F);
    heap.Ball(Around(a, reach, -22.5F, reach * 0.8F), {6, 2.8F, 5});
  }
  // Runnels down the flanks.
  static constexpr std::array<std::array<float, 3>, 7> kDrips{{{0.3F, 9, -13},
                                                               {0.9F, 4, -17},
                                                               {2.2F, 10, -8},
                                                               {2.8F, 6, -15},
                                                               {3.5F, 8, -9},
                                                               {-0.4F, 2, -12},
                                                               {4.3F, 5, -15}}};
  Group& drips = model.Add(kMire, 2, 2.5F);
  for (const auto& [angle, top, bottom] : kDrips) {
    const float high = 11 + (8 - top) * 0.55F;
    drips.Chain({{Around(angle, high, top, high * 0.85F), 2},
                 {Around(angle, high + 3.5F, (top + bottom) * 0.5F, high + 1), 1.6F},
                 {Around(angle, high + 6, bottom, high + 3.6F), 2.6F}},
                3);
  }
  model.Add(kMire, 2, 3)
      .Chain({{{-9, 9, 0}, 4.4F}, {{-12, 16, 1}, 3.2F}, {{-12, 20, 3}, 4.6F}}, 3)
      .Chain({{{2, 9, 0}, 4}, {{5, 14, 2}, 3}, {{6, 16, 4}, 4}}, 3);
  model.Add(kEye).Ball({-12, 21, 6}, {4.4F, 4.4F, 3.8F}).Ball({6.4F, 17, 7}, {3.5F, 3.5F, 3});
  model.Add(kMouth).Ball({-1, -4, 10}, {10, 6, 6});
  model.Add(kTongue, 2)
      .Chain({{{1, -7, 13}, 4}, {{2, -12, 18}, 4}, {{3, -17, 19}, 3.6F}, {{3, -20, 20}, 2.4F}}, 4);
  model.Add(kMire, 0.5F, 0.5F)
      .Limb({-6, 2, 14.5F}, {-6.4F, -9, 15}, 1, 0.8F)
      .Limb({5.6F, 1, 14.5F}, {5.8F, -8, 15}, 0.9F, 0.8F);
  model.Add(kTooth)
      .Limb({-3.4F, 0.6F, 15.4F}, {-3.2F, -3, 16}, 1.6F, 0.5F)
      .Limb({2.4F, 0.4F, 15.6F}, {2.4F, -2.6F, 16.4F}, 1.5F, 0.5F);
  model.Add(kBubble)
      .Ball({13, -9, 10}, {3, 3, 3})
      .Ball({-15, -14, 10}, {3.4F, 3.4F, 3.4F})
      .Ball({15, -18, 13}, {2.2F, 2.2F, 2.2F})
      .Ball({-3, 13.5F, 3}, {2.2F, 2.2F, 2.2F});
  model.Finish();
  return model;
}

}  // namespace

Image PaintSlime() {
  std::vector<Material> m(6);
  m[kMire] = {{0x281C28, 0x443824, 0x6C6424, 0x98942C, 0xBCBC3C, 0xDCDC70, 0xF4F4B8},
              0.4F,
              0.3F,
              0,
              Mottle(6, 0.08F)};
  m[kEye] = {{0x7C5068, 0xC8A8A8, 0xF0E8D8, 0xF8F8F0}, 0.4F, 0.1F, 0.3F};
  m[kMouth] = {{0x200818, 0x481028, 0x701C38}};
  m[kTongue] = {{0x701840, 0xB83060, 0xE86888, 0xF8B0B0}, 0.5F};
  m[kTooth] = {{0x908060, 0xE0D8B0, 0xF8F8E8}, 0, 0.1F, 0.2F};
  m[kBubble] = {{0x6C6424, 0xBCBC3C, 0xDCDC70, 0xF8F8E0}, 0.9F, 0.5F};
  Sprite sprite = Render(SlimeModel(), m, MonsterView(0.5F, 0.2F));
  StampAt(sprite, {-10.8F, 20.6F, 9.6F}, {"KK", "KK", "KK"}, "K", {0x200818});
  StampAt(sprite, {7.8F, 16.6F, 9.8F}, {"KK", "KK"}, "K", {0x200818});
  CastShadow(sprite, ShadowUnder(sprite));
  return PairSheet(sprite, 128, 64, 64);
}

}  // namespace orvane::paint
