#include "content/pictures/figures/render.h"

#include <array>

#include "content/pictures/figures/holes.h"
#include "content/pictures/figures/trace.h"

namespace orvane::paint {
namespace {

constexpr size_t kLargestHole = 3;  // that is closed, in pixels
constexpr std::array<std::array<int, 2>, 4> kNeighbours{{{1, 0}, {-1, 0}, {0, 1}, {0, -1}}};
constexpr std::array<std::array<int, 4>, 4> kBayer{
    {{0, 8, 2, 10}, {12, 4, 14, 6}, {3, 11, 1, 9}, {15, 7, 13, 5}}};

// A dark sister of the ramp's darkest colour: coloured lines look softer than black ones.
uint32_t OutlineOf(const Material& material) {
  const uint32_t c = material.Ramp.front();
  const auto part = [&](uint32_t shift, uint32_t percent) {
    return (c >> shift & 0xFFU) * percent / 100U << shift;
  };
  return part(16, 45) | part(8, 42) | part(0, 50);
}

class Inker {
 public:
  Inker(const std::vector<TracedPixel>& pixels, const std::vector<Material>& materials,
        const View& view)
      : pixels_(pixels), materials_(materials), view_(view) {}

  const TracedPixel* At(int x, int y) const {
    if (x < 0 || y < 0 || x >= view_.Width || y >= view_.Height) return nullptr;
    return &pixels_[static_cast<size_t>(y) * static_cast<size_t>(view_.Width) +
                    static_cast<size_t>(x)];
  }

  uint32_t Fill(int x, int y) const {
    const TracedPixel& pixel = *At(x, y);
    const std::vector<uint32_t>& ramp = materials_[static_cast<size_t>(pixel.Material)].Ramp;
    float behind = 0;
    for (const auto& [dx, dy] : kNeighbours) {
      const TracedPixel* other = At(x + dx, y + dy);
      if (other == nullptr || other->Material < 0) continue;
      behind = std::max(behind, pixel.Depth - other->Depth);
    }
    float light = Clamp(pixel.Light);
    if (behind > view_.Contour) {
      light *= 0.25F;
    } else if (behind > view_.Contour * 0.55F) {
      light *= 0.6F;
    }
    const int bayer = kBayer[static_cast<size_t>(y & 3)][static_cast<size_t>(x & 3)];
    const float dither = (static_cast<float>(bayer) / 16 - 0.47F) * view_.Dither;
    const float steps = static_cast<float>(ramp.size());
    const float step = std::floor(std::min(light, 0.9999F) * steps + dither);
    return ramp[static_cast<size_t>(std::clamp(step, 0.0F, steps - 1))];
  }

  // The material that an empty pixel outlines; -1 when it borders on nothing.
  int Bordering(int x, int y) const {
    int material = -1;
    for (const auto& [dx, dy] : kNeighbours) {
      const TracedPixel* other = At(x + dx, y + dy);
      if (other != nullptr && other->Material >= 0) material = other->Material;
    }
    return material;
  }

 private:
  const std::vector<TracedPixel>& pixels_;
  const std::vector<Material>& materials_;
  const View& view_;
};

}  // namespace

Sprite Render(const Model& model, const std::vector<Material>& materials, const View& view) {
  const Camera eye = Aim(model, view);
  const std::vector<TracedPixel> pixels = Trace(model, materials, view, eye);
  const Inker inker(pixels, materials, view);
  Sprite sprite{Image(view.Width, view.Height), std::vector<bool>(pixels.size()), eye};
  for (size_t i = 0; i < pixels.size(); ++i) {
    const int x = static_cast<int>(i) % view.Width;
    const int y = static_cast<int>(i) / view.Width;
    if (pixels[i].Material >= 0) {
      sprite.Picture.At(x, y) = inker.Fill(x, y);
      sprite.Solid[i] = true;
    } else if (const int border = inker.Bordering(x, y); border >= 0) {
      sprite.Picture.At(x, y) = OutlineOf(materials[static_cast<size_t>(border)]);
      sprite.Solid[i] = true;
    }
  }
  // A small hole is filled with the outline that runs around it.
  for (const HolePixel& hole : SmallHoles(sprite.Solid, view.Width, kLargestHole)) {
    sprite.Picture.Pixels[hole.At] = sprite.Picture.Pixels[hole.Beside];
    sprite.Solid[hole.At] = true;
  }
  return sprite;
}

}  // namespace orvane::paint
