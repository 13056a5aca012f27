// Paper with a carved frame: the grounds that the game's texts stand on.
#include <array>

#include "content/pictures/panels/panels.h"
#include "content/pictures/scenes/canvas.h"
#include "content/pictures/scenes/noise.h"

namespace orvane::paint::panel {
namespace {

using scene::Canvas;
using scene::Colour;
using scene::Hex;
using scene::Mix;

// The frame from its outermost line inwards.
struct Style {
  std::array<uint32_t, 5> frame;
  uint32_t paper;
  uint32_t shade;
};

constexpr Style parchment{{0x2C1810, 0x8C5C28, 0xF0D078, 0xA87430, 0x4A2C18}, 0xF8ECC8, 0xDCC490};
constexpr Style azure{{0x101C3C, 0x38588C, 0xC0DCF4, 0x5078B0, 0x20345C}, 0xE4F0FC, 0xB4CCE8};
constexpr Style crimson{{0x300C18, 0x8C2C34, 0xF8C0A0, 0xB04848, 0x501824}, 0xFCE8DC, 0xECC0B0};

Colour Paper(const Style& style, int x, int y) {
  const float fibre =
      scene::Fbm(static_cast<float>(x) * 0.09F, static_cast<float>(y) * 0.13F, 4, 21);
  return Mix(Hex(style.paper), Hex(style.shade), (fibre - 0.42F) * 1.6F);
}

Image Window(int width, int height, const Style& style) {
  Canvas canvas(width, height);
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) {
      const int edge = std::min(std::min(x, width - 1 - x), std::min(y, height - 1 - y));
      if (edge < 5) {
        canvas.At(x, y) = Hex(style.frame[static_cast<size_t>(edge)]);
        continue;
      }
      // The frame throws a shadow from the upper left.
      const int shadow = std::min(x - 5, y - 5);
      canvas.At(x, y) = Mix(Paper(style, x, y), Hex(style.frame[3]),
                            shadow < 3 ? 0.3F - 0.1F * static_cast<float>(shadow) : 0);
    }
  }
  return scene::ToSheet(canvas);
}

}  // namespace

Image PaintMessageWindow() {
  return Window(336, 64, parchment);
}
Image PaintStatusPanel() {
  return Window(480, 48, parchment);
}
Image PaintHeroName() {
  return Window(200, 48, azure);
}
Image PaintEnemyName() {
  return Window(200, 48, crimson);
}
Image PaintVictoryPanel() {
  return Window(336, 93, parchment);
}

}  // namespace orvane::paint::panel
