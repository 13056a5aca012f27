// The grounds that the game's texts stand on: old paper in a frame of gold.
#include <array>
#include <cstdlib>
#include <string_view>

#include "content/pictures/panels/frame.h"
#include "content/pictures/panels/panels.h"
#include "content/pictures/scenes/canvas.h"

namespace orvane::paint::panel {
namespace {

using scene::Canvas;
using scene::Colour;
using scene::Hex;

Image Window(int width, int height, const Style& style) {
  Canvas canvas(width, height);
  DrawWindow(canvas, style, {0, 0, width, height});
  return scene::ToSheet(canvas);
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
