#include "content/pictures/scenes/title_figures.h"

#include <array>
#include <cmath>

#include "content/pictures/figures/hero.h"
#include "content/pictures/scenes/noise.h"
#include "content/pictures/scenes/title_dragon.h"

namespace orvane::paint::scene {
namespace {

constexpr int kDragonLeft = 450;  // its muzzle keeps clear of the title's last letter
constexpr std::array<uint32_t, 5> kRock{0x08061C, 0x141030, 0x28204C, 0x483C70, 0x8478A4};
constexpr Colour kNight{0.52F, 0.46F, 0.78F};  // what the night leaves of a colour

Colour AtNight(Colour day) {
  return {day.R * kNight.R, day.G * kNight.G, day.B * kNight.B};
}

void LaySprite(Canvas& canvas, const Sprite& sprite, int left, int top, float dark, float deeper) {
  for (int y = 0; y < sprite.Picture.Height; ++y) {
    for (int x = 0; x < sprite.Picture.Width; ++x) {
      const uint32_t pixel = sprite.Picture.At(x, y);
      if (pixel == 0xFFFFFF) continue;
      // What is low lies deeper in the night.
      const float depth = dark + deeper * SmoothStep(0.3F, 1,
                                                     static_cast<float>(y) /
                                                         static_cast<float>(sprite.Picture.Height));
      canvas.Blend(left + x, top + y, Mix(Hex(pixel), AtNight(Hex(pixel)), depth));
    }
  }
}

float LedgeTop(float x) {
  const float rough = 26 * (Fbm(x * 0.012F, 0.5F, 5, 71) - 0.5F);
  return 496 + 0.06F * x + rough + 150 * SmoothStep(300, 440, x + rough * 2) +
         40 * SmoothStep(60, 0, x) * -1;
}

// The cliff in the lower left, lit along its edge.
void DrawLedge(Canvas& canvas) {
  for (int x = 0; x < 470; ++x) {
    const auto column = static_cast<float>(x);
    const float top = LedgeTop(column);
    for (int y = static_cast<int>(top); y < canvas.Height; ++y) {
      const auto row = static_cast<float>(y);
      const float below = row - top;
      const float here = Fbm(column * 0.02F + row * 0.008F, row * 0.035F, 5, 72);
      const float there = Fbm((column - 5) * 0.02F + row * 0.008F, (row - 6) * 0.035F, 5, 72);
      const float light =
          0.22F + (here - there) * 3.2F + 0.5F * std::exp(-below * 0.09F) - below * 0.0012F;
      canvas.Blend(x, y, OnRamp(kRock, light));
    }
  }
}

void DrawHero(Canvas& canvas, const Model& model, const std::vector<Material>& materials, float x) {
  paint::View view;
  view.Width = 160;
  view.Height = 160;
  view.Yaw = 2.1F;
  view.Pitch = 0.06F;
  view.Samples = 2;
  view.Margin = 2;
  view.Dither = 0.5F;
  view.Scale = 4.5F;
  view.Middle = {0, 1, 0};
  view.Light = {-0.6F, 0.8F, 0.2F};
  const Sprite sprite = Render(model, materials, view);
  const int top = static_cast<int>(LedgeTop(x)) - 138;
  LaySprite(canvas, sprite, static_cast<int>(x) - 80, top, 0.62F, 0);
}

}  // namespace

void DrawTitleFigures(Canvas& canvas) {
  LaySprite(canvas, RenderTitleDragon(), kDragonLeft, 0, 0.45F, 0.95F);
  DrawLedge(canvas);
  DrawHero(canvas, WomanModel(0), WomanMaterials(), 122);
  DrawHero(canvas, ManModel(0), ManMaterials(), 226);
}

}  // namespace orvane::paint::scene
