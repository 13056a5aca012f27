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
      canvas.Blend(x, 24 - off, Hex(style.Shaded[2]), cover);
      canvas.Blend(x, 24 + off, Hex(style.Shaded[2]), cover);
    }
  }
  return scene::ToSheet(canvas);
}

struct Sign {
  std::array<std::string_view, 9> Rows;
  std::array<uint32_t, 4> Colours{};  // for the letters a to d
};

constexpr int kSignWidth = 7;

// Life and magic, beside their numbers.
constexpr Sign kHeart{{".......", ".aa.aa.", "abcabba", "acdbbba", "abcbbba", "abbbbba", ".abbba.",
                       "..aba..", "...a..."},
                      {0x501020, 0xD83848, 0xF89090, 0xFFFFFF}};
constexpr Sign kDrop{{"...a...", "..aba..", "..aba..", ".abcba.", ".abcba.", "abdcbba", "acdbbba",
                      ".abbba.", "..aaa.."},
                     {0x14205C, 0x3C6CD8, 0x90C8F8, 0xFFFFFF}};

void DrawSign(Canvas& canvas, const Sign& sign, int left, int top) {
  int y = top;
  for (const std::string_view row : sign.Rows) {
    for (int x = 0; x < kSignWidth; ++x) {
      const char letter = row[static_cast<size_t>(x)];
      if (letter != '.') {
        canvas.Blend(left + x, y, Hex(sign.Colours[static_cast<size_t>(letter - 'a')]));
      }
    }
    ++y;
  }
}

// Where a face hangs: dark cloth in a frame, woven in lozenges, and a stone.
void DrawNiche(Canvas& canvas, int left) {
  const Area area{left, 0, 50, 48};
  DrawWindow(canvas, kCloth, area);
  for (int y = 7; y < 41; ++y) {
    for (int x = 7; x < 43; ++x) {
      const bool thread = (x + y) % 8 == 0 || (x - y + 48) % 8 == 0;
      if (thread) canvas.Blend(left + x, y, Hex(kCloth.Rim), 0.5F);
    }
  }
  DrawGem(canvas, kParchment, left + 25, 24, {0xE8B840, 0xA86C20});
}

}  // namespace

Image PaintMessageWindow() {
  return Window(336, 64, kParchment);
}
Image PaintHeroName() {
  return NameWindow(kAzure, {0x4C90E8, 0x2048A8});
}
Image PaintEnemyName() {
  return NameWindow(kCrimson, {0xE84858, 0x981838});
}
Image PaintVictoryPanel() {
  Canvas canvas(336, 93);
  DrawWindow(canvas, kParchment, {0, 0, 336, 93});
  // A rule between the gains and the heroes' news, fading to both sides, with a lozenge on it, and
  // one between the two heroes.
  constexpr int rule = 36;
  constexpr int middle = 167;
  for (int off = -150; off <= 150; ++off) {
    const float cover = 0.9F - 0.0055F * static_cast<float>(std::abs(off));
    canvas.Blend(middle + off, rule, Hex(kParchment.Shaded[1]), cover);
    canvas.Blend(middle + off, rule + 1, Hex(kParchment.Lit[1]), cover);
  }
  for (int y = rule + 6; y < 84; ++y) {
    canvas.Blend(middle, y, Hex(kParchment.Shaded[1]), 0.45F);
    canvas.Blend(middle + 1, y, Hex(kParchment.Lit[2]), 0.45F);
  }
  DrawGem(canvas, kParchment, middle, rule, {0xE85858, 0xB02838});
  return scene::ToSheet(canvas);
}

Image PaintStatusPanel() {
  Canvas canvas(480, 48);
  // A face in its border covers the first 50 columns of each half. The paper's frame begins under
  // that border, for the texts begin at column 64 and the signs need room before them.
  for (const int left : {0, 240}) {
    DrawNiche(canvas, left);
    DrawWindow(canvas, kParchment, {left + 49, 0, 191, 48});
    DrawSign(canvas, kHeart, left + 56, 11);
    DrawSign(canvas, kDrop, left + 56, 27);
  }
  return scene::ToSheet(canvas);
}

}  // namespace orvane::paint::panel
