#include <array>

#include "content/pictures/scenes/canvas.h"
#include "content/pictures/scenes/noise.h"
#include "content/pictures/scenes/scenes.h"

namespace orvane::paint::scene {
namespace {

Image Rough(int width, int height, int horizon, Ramp sky, Ramp ground) {
  Canvas canvas(width, height);
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) {
      const auto fx = static_cast<float>(x);
      const auto fy = static_cast<float>(y);
      const float depth = (fy - static_cast<float>(horizon)) / static_cast<float>(height - horizon);
      const float grain = Fbm(fx * 0.02F, fy * 0.1F, 5, 3) - 0.5F;
      canvas.At(x, y) = y < horizon ? OnRamp(sky, fy / static_cast<float>(horizon) + grain * 0.5F)
                                    : OnRamp(ground, 0.3F + depth * 0.5F + grain);
    }
  }
  return ToSheet(Painted(canvas, 2, 0.75F), 200, 7);
}

constexpr std::array<uint32_t, 3> dusk{0x1C1848, 0x783C7C, 0xF49058};
constexpr std::array<uint32_t, 4> dark{0x0C0818, 0x1C1028, 0x34182C, 0x5C2C34};

}  // namespace

Image PaintEndingStill() {
  return Rough(454, 300, 205, dusk, dark);
}

}  // namespace orvane::paint::scene
