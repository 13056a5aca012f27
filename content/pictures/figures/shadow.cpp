#include "content/pictures/figures/shadow.h"

#include <array>

namespace orvane::paint {
namespace {

// The order in which the pixels of a square of four are darkened.
constexpr std::array<std::array<int, 2>, 2> kOrder{{{0, 2}, {3, 1}}};
constexpr float kFlatness = 0.2F;  // height of the ellipse by its width
constexpr float kLowest = 3.2F;    // that the half height may be, in pixels
constexpr float kLean = 0.1F;      // how far it moves away from the light, by its width

struct Span {
  float Left = 1e9F;
  float Right = -1e9F;
  float Top = 1e9F;
  float Bottom = -1e9F;
};

// What the figure covers from the row `from` on.
Span Covered(const Sprite& sprite, float from) {
  Span span;
  for (size_t i = 0; i < sprite.Solid.size(); ++i) {
    if (!sprite.Solid[i]) continue;
    const float x = static_cast<float>(static_cast<int>(i) % sprite.Picture.Width);
    const float y = static_cast<float>(static_cast<int>(i) / sprite.Picture.Width);
    if (y < from) continue;
    span.Left = std::min(span.Left, x);
    span.Right = std::max(span.Right, x + 1);
    span.Top = std::min(span.Top, y);
    span.Bottom = std::max(span.Bottom, y + 1);
  }
  return span;
}

// The ellipse stays inside of a cell of the given width, off its outermost pixels.
GroundShadow OnLine(const Span& span, float share, float bottom, int width) {
  GroundShadow shadow;
  shadow.HalfWidth = (span.Right - span.Left) * 0.5F * share;
  shadow.HalfHeight = std::max(shadow.HalfWidth * kFlatness, kLowest);
  shadow.X = (span.Left + span.Right) * 0.5F + shadow.HalfWidth * kLean;
  const float right = static_cast<float>(width - 1) - shadow.X;
  shadow.HalfWidth = std::min({shadow.HalfWidth, right, shadow.X - 1});
  shadow.Y = bottom - shadow.HalfHeight;
  return shadow;
}

// How many of four pixels are dark at a distance from the middle, 1 at the rim.
int Darkness(const GroundShadow& shadow, float distance) {
  if (distance < shadow.Full) return 4;
  if (distance < 0.68F) return 3;
  return distance < 1 ? 2 : 0;
}

}  // namespace

GroundShadow ShadowUnder(const Sprite& sprite, float wider) {
  const Span all = Covered(sprite, 0);
  const Span feet = Covered(sprite, all.Bottom - (all.Bottom - all.Top) * 0.14F);
  return OnLine(feet, wider, all.Bottom + kShadowRoom, sprite.Picture.Width);
}

GroundShadow ShadowBelow(const Sprite& sprite, float share, int above) {
  return OnLine(Covered(sprite, 0), share, static_cast<float>(sprite.Picture.Height - above),
                sprite.Picture.Width);
}

void CastShadow(Sprite& sprite, const GroundShadow& shadow) {
  for (int y = 1; y + 1 < sprite.Picture.Height; ++y) {
    for (int x = 1; x + 1 < sprite.Picture.Width; ++x) {
      const size_t place = static_cast<size_t>(y) * static_cast<size_t>(sprite.Picture.Width) +
                           static_cast<size_t>(x);
      if (sprite.Solid[place]) continue;
      const float u = (static_cast<float>(x) + 0.5F - shadow.X) / shadow.HalfWidth;
      const float v = (static_cast<float>(y) + 0.5F - shadow.Y) / shadow.HalfHeight;
      const int order = kOrder[static_cast<size_t>(y & 1)][static_cast<size_t>(x & 1)];
      if (order >= Darkness(shadow, std::sqrt(u * u + v * v))) continue;
      sprite.Picture.At(x, y) = kShadowColour;
      sprite.Solid[place] = true;
    }
  }
}

}  // namespace orvane::paint
