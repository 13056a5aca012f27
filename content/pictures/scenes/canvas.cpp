#include "content/pictures/scenes/canvas.h"

#include <array>

#include "content/pictures/scenes/palette.h"

namespace orvane::paint::scene {
namespace {

constexpr std::array<std::array<int, 4>, 4> kBayer{
    {{0, 8, 2, 10}, {12, 4, 14, 6}, {3, 11, 1, 9}, {15, 7, 13, 5}}};

float Threshold(int x, int y) {
  const int rank = kBayer[static_cast<size_t>(y & 3)][static_cast<size_t>(x & 3)];
  return static_cast<float>(rank) / 16 - 0.47F;
}

struct Patch {
  Colour mean;
  float unrest = 0;
};

// The square of radius + 1 pixels with its upper left corner at (left, top), cut at the borders.
Patch Measure(const Canvas& canvas, int left, int top, int radius) {
  Colour sum;
  float squares = 0;
  for (int y = top; y <= top + radius; ++y) {
    for (int x = left; x <= left + radius; ++x) {
      const Colour& c =
          canvas.At(std::clamp(x, 0, canvas.width - 1), std::clamp(y, 0, canvas.height - 1));
      sum = sum + c;
      squares += c.r * c.r + c.g * c.g + c.b * c.b;
    }
  }
  const float count = static_cast<float>((radius + 1) * (radius + 1));
  const Colour mean = sum * (1 / count);
  return {mean, squares / count - (mean.r * mean.r + mean.g * mean.g + mean.b * mean.b)};
}

}  // namespace

Canvas Shrink(const Canvas& canvas, int across, int down) {
  Canvas small(canvas.width / across, canvas.height / down);
  const float share = 1 / static_cast<float>(across * down);
  for (int y = 0; y < canvas.height; ++y) {
    for (int x = 0; x < canvas.width; ++x) {
      Colour& target = small.At(x / across, y / down);
      target = target + canvas.At(x, y) * share;
    }
  }
  return small;
}

Canvas Painted(const Canvas& canvas, int radius, float share) {
  Canvas result(canvas.width, canvas.height);
  for (int y = 0; y < canvas.height; ++y) {
    for (int x = 0; x < canvas.width; ++x) {
      Patch calmest = Measure(canvas, x - radius, y - radius, radius);
      for (int corner = 1; corner < 4; ++corner) {
        const Patch patch = Measure(canvas, x - (corner % 2 == 0 ? radius : 0),
                                    y - (corner / 2 == 0 ? radius : 0), radius);
        if (patch.unrest < calmest.unrest) calmest = patch;
      }
      result.At(x, y) = Mix(canvas.At(x, y), calmest.mean, share);
    }
  }
  return result;
}

Image ToSheet(const Canvas& canvas, int colours, float dither) {
  Image image(canvas.width, canvas.height);
  for (int y = 0; y < canvas.height; ++y) {
    for (int x = 0; x < canvas.width; ++x) {
      const float shift = Threshold(x, y) * dither / 255;
      image.At(x, y) = ToPixel(canvas.At(x, y) + Colour{shift, shift, shift});
    }
  }
  const std::vector<uint32_t> palette = MakePalette(image, colours);
  for (uint32_t& pixel : image.pixels) pixel = Nearest(palette, pixel);
  return image;
}

Image ToSheet(const Canvas& canvas) {
  Image image(canvas.width, canvas.height);
  for (size_t i = 0; i < canvas.pixels.size(); ++i) image.pixels[i] = ToPixel(canvas.pixels[i]);
  return image;
}

}  // namespace orvane::paint::scene
