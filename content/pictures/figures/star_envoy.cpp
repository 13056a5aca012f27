// The envoy of the stars: a living golden star with one blue eye and a comet's tail.
#include <array>

#include "content/pictures/figures/figures.h"
#include "content/pictures/figures/monster.h"
#include "content/pictures/figures/shadow.h"

namespace orvane::paint {
namespace {

enum Stuff { kStar, kEye, kLid, kTailA, kTailB, kTailC, kSpark };

// Cut facets: each arm has a lit and a shaded side, with a ridge between.
float FacetLight(Touch& touch, float light) {
  const Vec p = touch.At;
  const float arm = std::atan2(p.X, p.Y) / 1.2566371F + 10.5F;
  const float side = Fraction(arm) - 0.5F;
  const float ridge = std::fabs(side) < 0.04F ? 0.12F : 0.0F;
  return light * (side > 0 ? 0.82F : 1.1F) + ridge;
}

void AddSpark(Model& model, Vec at, float size) {
  model.Add(kSpark, 0.8F)
      .Leaf(at - Vec{size, 0, 0}, at + Vec{size, 0, 0}, size * 0.24F, size * 0.24F)
      .Leaf(at - Vec{0, size * 1.3F, 0}, at + Vec{0, size * 1.3F, 0}, size * 0.24F, size * 0.24F);
}

Model StarModel() {
  Model model;
  Group& star = model.Add(kStar, 4, 0);
  for (int i = 0; i < 5; ++i) {
    const float a = static_cast<float>(i) * 1.2566371F;
    const Vec out{std::sin(a), std::cos(a), 0};
    star.Limb({0, 0, 0}, out * 19, 8, 1);
  }
  star.Ball({0, 0, 1.4F}, {9.4F, 9.4F, 6.8F});
  model.Add(kLid, 1, 1).Ring({0, 0.6F, 6.6F}, {6, 0, 0}, {0, 5, 0.6F}, 1.4F);
  model.Add(kEye).Ball({0, 0.6F, 6.2F}, {5.4F, 4.6F, 3});
  // Three streams behind it, falling away to the lower left and waving apart.
  struct Stream {
    int Stuff;
    float Aside;
    float Sway;
    float Length;
  };
  static constexpr std::array<Stream, 3> kStreams{
      {{kTailA, 5.5F, 4, 27}, {kTailB, 0, -3, 34}, {kTailC, -5.5F, -4, 27}}};
  const Vec along{-0.78F, -0.6F, -0.3F};
  const Vec aside{-0.6F, 0.78F, 0};
  for (const auto& [stuff, off, sway, length] : kStreams) {
    model.Add(stuff, 1.5F)
        .Chain({{Vec{0, 0, -5} + aside * off, 6},
                {along * (length * 0.5F) + aside * (off * 1.5F - sway), 5},
                {along * (length * 0.85F) + aside * (off * 1.8F + sway), 3.4F},
                {along * (length * 1.2F) + aside * (off * 1.7F - sway), 0.5F}},
               5);
  }
  AddSpark(model, {-11, 15, 4}, 3.2F);
  AddSpark(model, {-20, 6, 0}, 2.2F);
  AddSpark(model, {10, -20, 4}, 2.8F);
  model.Finish();
  return model;
}

}  // namespace

Image PaintStarEnvoy() {
  std::vector<Material> m(7);
  m[kStar] = {{0x502048, 0x8C4430, 0xC87C20, 0xECB428, 0xF8DC58, 0xF8F0A0, 0xF8F8E0},
              0.4F,
              0.35F,
              0.06F,
              FacetLight};
  m[kEye] = {{0x8090B0, 0xD0DCE8, 0xF8F8F8}, 0.2F, 0, 0.4F};
  m[kLid] = {{0x601838, 0x9C3030, 0xD86C30}, 0.2F};
  m[kTailA] = {{0x104868, 0x1C80A8, 0x40B8D8, 0xA0ECF0}, 0.1F, 0.3F, 0.1F};
  m[kTailB] = {{0x30206C, 0x5038A8, 0x7C64D8, 0xB8A8F0}, 0.1F, 0.3F, 0.1F};
  m[kTailC] = {{0x681858, 0xA83080, 0xE060A8, 0xF8B0D0}, 0.1F, 0.3F, 0.1F};
  m[kSpark] = {{0x5890C0, 0xC0ECF8, 0xF8F8F0}, 0.2F, 0.1F, 0.5F};
  Sprite sprite = Render(StarModel(), m, HoverView(0.42F, 0.04F, 9));
  StampAt(sprite, {1.2F, 0.4F, 9}, {".BBB.", "BCKCB", "BKKWB", "BCKCB", ".BBB."}, "BCKW",
          {0x1C3C8C, 0x48A8E8, 0x0C1028, 0xF8F8F8});
  CastShadow(sprite, ShadowBelow(sprite));
  return PairSheet(sprite, 128, 64, 64);
}

}  // namespace orvane::paint
