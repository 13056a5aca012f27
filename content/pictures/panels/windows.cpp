// The grounds that the game's texts stand on: old paper in a frame of gold.
#include <array>
#include <cmath>
#include <cstdlib>
#include <string_view>

#include "content/pictures/panels/panels.h"
#include "content/pictures/scenes/canvas.h"
#include "content/pictures/scenes/noise.h"

namespace orvane::paint::panel {
namespace {

using scene::Canvas;
using scene::Colour;
using scene::Hex;
using scene::Mix;

struct Area {
  int left;
  int top;
  int width;
  int height;
};

// The frame's lines from the outermost inwards where light falls on them and where it does not, the
// paper with its stains, and the corner pieces' colours for the letters a to e.
struct Style {
  std::array<uint32_t, 5> lit;
  std::array<uint32_t, 5> shaded;
  uint32_t paper;
  uint32_t stain;
  uint32_t rim;
  std::array<uint32_t, 5> corner;
};

constexpr Style parchment{{0x24120C, 0xF0C860, 0xFFF4B8, 0xB47830, 0x4C2A16},
                          {0x24120C, 0x80501C, 0xC48C38, 0xE4B450, 0x4C2A16},
                          0xFAF0D0,
                          0xE4CE9C,
                          0xC8A468,
                          {0x3C1C10, 0x9C6424, 0xD8A040, 0xFCE078, 0xFFFCE0}};
constexpr Style azure{{0x0C1430, 0x88B4E8, 0xF0FCFF, 0x4874B4, 0x1C2C5C},
                      {0x0C1430, 0x2C4C88, 0x5888C8, 0x98C4EC, 0x1C2C5C},
                      0xECF6FF,
                      0xC4DAF2,
                      0x90B0DC,
                      {0x142450, 0x3860A8, 0x6CA4DC, 0xB8E0FC, 0xFFFFFF}};
constexpr Style crimson{{0x280818, 0xF0907C, 0xFFE8DC, 0xA83C44, 0x581424},
                        {0x280818, 0x781C30, 0xBC4C50, 0xE8907C, 0x581424},
                        0xFFF0E6,
                        0xF2CCBC,
                        0xD8948C,
                        {0x480C20, 0x982838, 0xD85C54, 0xF8AC94, 0xFFF8F0}};

// The upper left corner's piece; the others are its mirror images. A dot leaves the frame.
constexpr std::array<std::string_view, 7> corner{"aaaaaaa", "aedddca", "adbbbba", "adbedba",
                                                 "adbdcba", "acbbbaa", "aaaaaa."};

Colour Paper(const Style& style, const Area& area, int x, int y) {
  const auto fx = static_cast<float>(x);
  const auto fy = static_cast<float>(y);
  const float cloud = scene::Fbm(fx * 0.035F, fy * 0.05F, 4, 21) - 0.5F;
  const float fibre = scene::Noise(fx * 0.22F, fy * 0.9F, 22) - 0.5F;
  const int edge = std::min(std::min(x - area.left, area.left + area.width - 1 - x),
                            std::min(y - area.top, area.top + area.height - 1 - y));
  // Paper browns from its rim inwards, unevenly.
  const float browned = std::exp(-(static_cast<float>(edge) - 5 + cloud * 12) * 0.28F);
  const Colour sheet =
      Mix(Hex(style.paper), Hex(style.stain), 0.18F + cloud * 1.5F + fibre * 0.22F);
  return Mix(sheet, Hex(style.rim), scene::Clamp(browned) * 0.8F);
}

void DrawCorners(Canvas& canvas, const Style& style, const Area& area) {
  for (size_t row = 0; row < corner.size(); ++row) {
    for (size_t column = 0; column < corner[row].size(); ++column) {
      const char letter = corner[row][column];
      if (letter == '.') continue;
      const Colour colour = Hex(style.corner[static_cast<size_t>(letter - 'a')]);
      const int in_x = static_cast<int>(column);
      const int in_y = static_cast<int>(row);
      for (const int x : {area.left + in_x, area.left + area.width - 1 - in_x}) {
        for (const int y : {area.top + in_y, area.top + area.height - 1 - in_y}) {
          // Pieces away from the light are a shade darker.
          const float dark = (x > area.left + area.width / 2 ? 0.12F : 0) +
                             (y > area.top + area.height / 2 ? 0.14F : 0);
          canvas.Blend(x, y, Mix(colour, Hex(style.corner[0]), dark));
        }
      }
    }
  }
}

void DrawWindow(Canvas& canvas, const Style& style, const Area& area) {
  for (int y = area.top; y < area.top + area.height; ++y) {
    for (int x = area.left; x < area.left + area.width; ++x) {
      const int upper_left = std::min(x - area.left, y - area.top);
      const int lower_right =
          std::min(area.left + area.width - 1 - x, area.top + area.height - 1 - y);
      const int edge = std::min(upper_left, lower_right);
      if (edge < 5) {
        const auto& lines = upper_left <= lower_right ? style.lit : style.shaded;
        canvas.At(x, y) = Hex(lines[static_cast<size_t>(edge)]);
        continue;
      }
      // The frame throws a short shadow on the paper.
      const float shadow = upper_left < 8 ? 0.34F - 0.1F * static_cast<float>(upper_left - 5) : 0;
      canvas.At(x, y) = Mix(Paper(style, area, x, y), Hex(style.lit[4]), shadow);
    }
  }
  DrawCorners(canvas, style, area);
}

Image Window(int width, int height, const Style& style) {
  Canvas canvas(width, height);
  DrawWindow(canvas, style, {0, 0, width, height});
  return scene::ToSheet(canvas);
}

// A cut stone about (x, y), 9 pixels high; its lit and its shaded face.
void DrawGem(Canvas& canvas, const Style& style, int x, int y, std::array<uint32_t, 2> faces) {
  for (int down = -4; down <= 4; ++down) {
    for (int right = std::abs(down) - 4; right <= 4 - std::abs(down); ++right) {
      const bool border = std::abs(right) + std::abs(down) == 4;
      const uint32_t inside = right + down < -1 ? style.lit[2] : faces[right + down > 1 ? 1 : 0];
      canvas.Blend(x + right, y + down, Hex(border ? style.lit[4] : inside));
    }
  }
}

// A window for a name, with a stone at each side of it.
Image NameWindow(const Style& style, std::array<uint32_t, 2> faces) {
  Canvas canvas(200, 48);
  DrawWindow(canvas, style, {0, 0, 200, 48});
  for (const int side : {-1, 1}) {
    const int x = side < 0 ? 15 : 184;
    DrawGem(canvas, style, x, 24, faces);
    // A line leads up and down from the stone and fades.
    for (int off = 6; off < 15; ++off) {
      const float cover = 0.75F - 0.06F * static_cast<float>(off - 6);
      canvas.Blend(x, 24 - off, Hex(style.shaded[2]), cover);
      canvas.Blend(x, 24 + off, Hex(style.shaded[2]), cover);
    }
  }
  return scene::ToSheet(canvas);
}

struct Sign {
  std::array<std::string_view, 9> rows;
  std::array<uint32_t, 4> colours{};  // for the letters a to d
};

// Life and magic, beside their numbers.
constexpr Sign heart{{".aa...aa.", "abca.abba", "acdbabbba", "abcbbbbba", "abbbbbbba", ".abbbbba.",
                      "..abbba..", "...aba...", "....a...."},
                     {0x501020, 0xD83848, 0xF89090, 0xFFFFFF}};
constexpr Sign drop{{"....a....", "...aba...", "...aba...", "..abcba..", ".abdcbba.", ".acdbbba.",
                     ".abcbbba.", "..abbba..", "...aaa..."},
                    {0x14205C, 0x3C6CD8, 0x90C8F8, 0xFFFFFF}};

void DrawSign(Canvas& canvas, const Sign& sign, int left, int top) {
  for (int y = 0; y < 9; ++y) {
    for (int x = 0; x < 9; ++x) {
      const char letter = sign.rows[static_cast<size_t>(y)][static_cast<size_t>(x)];
      if (letter != '.')
        canvas.Blend(left + x, top + y, Hex(sign.colours[static_cast<size_t>(letter - 'a')]));
    }
  }
}

}  // namespace

Image PaintMessageWindow() {
  return Window(336, 64, parchment);
}
Image PaintHeroName() {
  return NameWindow(azure, {0x4C90E8, 0x2048A8});
}
Image PaintEnemyName() {
  return NameWindow(crimson, {0xE84858, 0x981838});
}
Image PaintVictoryPanel() {
  Canvas canvas(336, 93);
  DrawWindow(canvas, parchment, {0, 0, 336, 93});
  // A rule between the gains and the heroes' news, fading to both sides, with a lozenge on it, and
  // one between the two heroes.
  constexpr int rule = 36;
  constexpr int middle = 167;
  for (int off = -150; off <= 150; ++off) {
    const float cover = 0.9F - 0.0055F * static_cast<float>(std::abs(off));
    canvas.Blend(middle + off, rule, Hex(parchment.shaded[1]), cover);
    canvas.Blend(middle + off, rule + 1, Hex(parchment.lit[1]), cover);
  }
  for (int y = rule + 6; y < 84; ++y) {
    canvas.Blend(middle, y, Hex(parchment.shaded[1]), 0.45F);
    canvas.Blend(middle + 1, y, Hex(parchment.lit[2]), 0.45F);
  }
  DrawGem(canvas, parchment, middle, rule, {0xE85858, 0xB02838});
  return scene::ToSheet(canvas);
}

Image PaintStatusPanel() {
  Canvas canvas(480, 48);
  for (Colour& colour : canvas.pixels) colour = Hex(parchment.lit[0]);
  // A face in its border covers the first 50 columns of each half.
  for (const int left : {0, 240}) {
    DrawWindow(canvas, parchment, {left + 50, 0, 190, 48});
    DrawSign(canvas, heart, left + 55, 12);
    DrawSign(canvas, drop, left + 55, 28);
  }
  return scene::ToSheet(canvas);
}

}  // namespace orvane::paint::panel
