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
  Colour Mean;
  float Unrest = 0;
};

// The square of radius + 1 pixels with its upper left corner at (left, top), cut at the borders.
Patch Measure(const Canvas& canvas, int left, int top, int radius) {
  Colour sum;
  float squares = 0;
  for (int y = top; y <= top + radius; ++y) {
    for (int x = left; x <= left + radius; ++x) {
      const Colour& c =
          canvas.At(std::clamp(x, 0, canvas.Width - 1), std::clamp(y, 0, canvas.Height - 1));
      sum = sum + c;
      squares += c.R * c.R + c.G * c.G + c.B * c.B;
    }
  }
  const float count = static_cast<float>((radius + 1) * (radius + 1));
  const Colour mean = sum * (1 / count);
  return {mean, squares / count - (mean.R * mean.R + mean.G * mean.G + mean.B * mean.B)};
}

}  // namespace

Canvas Shrink(const Canvas& canvas, int across, int down) {
  Canvas small(canvas.Width / across, canvas.Height / down);
  const float share = 1 / static_cast<float>(across * down);
  for (int y = 0; y < canvas.Height; ++y) {
    for (int x = 0; x < canvas.Width; ++x) {
      Colour& target = small.At(x / across, y / down);
      target = target + canvas.At(x, y) * share;
    }
  }
  return small;
}

Canvas Painted(const Canvas& canvas, int radius, float share) {
  Canvas result(canvas.Width, canvas.Height);
  for (int y = 0; y < canvas.Height; ++y) {
    for (int x = 0; x < canvas.Width; ++x) {
      Patch calmest = Measure(canvas, x - radius, y - radius, radius);
      for (int corner = 1; corner < 4; ++corner) {
        const Patch patch = Measure(canvas, x - (corner % 2 == 0 ? radius : 0),
                                    y - (corner / 2 == 0 ? radius : 0), radius);
        if (patch.Unrest < calmest.Unrest) calmest = patch;
      }
      result.At(x, y) = Mix(canvas.At(x, y), calmest.Mean, share);
    }
  }
  return result;
}

Image ToSheet(const Canvas& canvas, int colours, float dither) {
  Image image(canvas.Width, canvas.Height);
  for (int y = 0; y < canvas.Height; ++y) {
    for (int x = 0; x < canvas.Width; ++x) {
      const float shift = Threshold(x, y) * dither / 255;
      image.At(x, y) = ToPixel(canvas.At(x, y) + Colour{shift, shift, shift});
    }
  }
  const std::vector<uint32_t> palette = MakePalette(image, colours);
  for (uint32_t& pixel : image.Pixels) pixel = Nearest(palette, pixel);
  return image;
}

Image ToSheet(const Canvas& canvas) {
  Image image(canvas.Width, canvas.Height);
  for (size_t i = 0; i < canvas.Pixels.size(); ++i) image.Pixels[i] = ToPixel(canvas.Pixels[i]);
  return image;
}

}  // namespace orvane::paint::scene
