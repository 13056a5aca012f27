#include "content/pictures/panels/frame.h"

#include <cmath>
#include <cstdlib>
#include <string_view>

#include "content/pictures/scenes/noise.h"

namespace orvane::paint::panel {
namespace {

using scene::Canvas;
using scene::Colour;
using scene::Hex;
using scene::Mix;

// The upper left corner's piece; the others are its mirror images. A dot leaves the frame.
constexpr std::array<std::string_view, 7> kCorner{"aaaaaaa", "aedddca", "adbbbba", "adbedba",
                                                  "adbdcba", "acbbbaa", "aaaaaa."};

Colour Paper(const Style& style, const Area& area, int x, int y) {
  const auto fx = static_cast<float>(x);
  const auto fy = static_cast<float>(y);
  const float cloud = scene::Fbm(fx * 0.035F, fy * 0.05F, 4, 21) - 0.5F;
  const float fibre = scene::Noise(fx * 0.22F, fy * 0.9F, 22) - 0.5F;
  const int edge = std::min(std::min(x - area.Left, area.Left + area.Width - 1 - x),
                            std::min(y - area.Top, area.Top + area.Height - 1 - y));
  // Paper browns from its rim inwards, unevenly.
  const float browned = std::exp(-(static_cast<float>(edge) - 5 + cloud * 12) * 0.28F);
  const Colour sheet =
      Mix(Hex(style.Paper), Hex(style.Stain), 0.18F + cloud * 1.5F + fibre * 0.22F);
  return Mix(sheet, Hex(style.Rim), Clamp(browned) * 0.8F);
}

void DrawCorners(Canvas& canvas, const Style& style, const Area& area) {
  for (size_t row = 0; row < kCorner.size(); ++row) {
    for (size_t column = 0; column < kCorner[row].size(); ++column) {
      const char letter = kCorner[row][column];
      if (letter == '.') continue;
      const Colour colour = Hex(style.Corner[static_cast<size_t>(letter - 'a')]);
      const int in_x = static_cast<int>(column);
      const int in_y = static_cast<int>(row);
      for (const int x : {area.Left + in_x, area.Left + area.Width - 1 - in_x}) {
        for (const int y : {area.Top + in_y, area.Top + area.Height - 1 - in_y}) {
          // Pieces away from the light are a shade darker.
          const float dark = (x > area.Left + area.Width / 2 ? 0.12F : 0) +
                             (y > area.Top + area.Height / 2 ? 0.14F : 0);
          canvas.Blend(x, y, Mix(colour, Hex(style.Corner[0]), dark));
        }
      }
    }
  }
}

}  // namespace

void DrawWindow(Canvas& canvas, const Style& style, const Area& area) {
  for (int y = area.Top; y < area.Top + area.Height; ++y) {
    for (int x = area.Left; x < area.Left + area.Width; ++x) {
      const int upper_left = std::min(x - area.Left, y - area.Top);
      const int lower_right =
          std::min(area.Left + area.Width - 1 - x, area.Top + area.Height - 1 - y);
      const int edge = std::min(upper_left, lower_right);
      if (edge < 5) {
        const auto& lines = upper_left <= lower_right ? style.Lit : style.Shaded;
        canvas.At(x, y) = Hex(lines[static_cast<size_t>(edge)]);
        continue;
      }
      // The frame throws a short shadow on the paper.
      const float shadow = upper_left < 8 ? 0.34F - 0.1F * static_cast<float>(upper_left - 5) : 0;
      canvas.At(x, y) = Mix(Paper(style, area, x, y), Hex(style.Lit[4]), shadow);
    }
  }
  DrawCorners(canvas, style, area);
}

void DrawGem(Canvas& canvas, const Style& style, int x, int y, std::array<uint32_t, 2> faces) {
  for (int down = -4; down <= 4; ++down) {
    for (int right = std::abs(down) - 4; right <= 4 - std::abs(down); ++right) {
      const bool border = std::abs(right) + std::abs(down) == 4;
      const uint32_t inside = right + down < -1 ? style.Lit[2] : faces[right + down > 1 ? 1 : 0];
      canvas.Blend(x + right, y + down, Hex(border ? style.Lit[4] : inside));
    }
  }
}

}  // namespace orvane::paint::panel
