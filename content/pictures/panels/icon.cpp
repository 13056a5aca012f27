// The window's icon: a dragon's eye among its scales. Small sizes are flat shapes that leave out
// what would only blur, large ones a relief.
#include <string>

#include "content/pictures/panels/icon_relief.h"
#include "content/pictures/panels/panels.h"
#include "content/pictures/scenes/drawing.h"

namespace orvane::paint::panel {
namespace {

using scene::Drawing;
using scene::Fill;

constexpr const char* kSocket = "M2 37 Q16 13 40 13 Q55 15 63 26 Q58 50 34 54 Q13 53 2 37 Z";
constexpr const char* kBall =
    "M7 36.5 Q20 19.5 40 19.5 Q51 20.5 58 28 Q53 44.5 34 47 Q17 47 7 36.5 Z";
constexpr const char* kBrow = "M0 38 Q13 6 42 7 Q57 9 64 20 L64 27 Q54 15.5 40 15 Q18 15 3 39 Z";
constexpr const char* kLid =
    "M2 38 Q14 51.5 34 52 Q56 49 63 28 L64 34 Q58 56.5 34 59 Q11 57 0 41 Z";
constexpr const char* kSlit = "M37 18.5 Q43.5 33 35.5 47.5 Q30 33 37 18.5 Z";

// Overlapping scales in rows, each a lit bow over a dark one.
void DrawScales(Drawing& icon) {
  for (int row = -1; row < 10; ++row) {
    for (int column = -1; column < 8; ++column) {
      const double x = column * 9.4 + (row % 2 == 0 ? 0 : 4.7);
      const double y = row * 7.0;
      icon.Place(x, y, 1, 1);
      icon.Shape("M0 0 Q0 8 4.7 9.6 Q9.4 8 9.4 0 Z",
                 Fill(0, 0, 9, 9, {{0, 0xC84830}, {0.6, 0x8C2028}, {1, 0x541424}}));
      icon.Line("M0 0 Q0 8 4.7 9.6 Q9.4 8 9.4 0", 0x34101C, 0.9);
      icon.Line("M1.4 2 Q1.6 6.4 4.2 8", 0xF08858, 0.8, 0.75);
      icon.Replace();
    }
  }
  icon.Shape("M0 0 H64 V64 H0 Z", 0x2C0C24, 0.18);
}

void DrawEye(Drawing& icon, int size) {
  icon.Shape(kSocket, 0x200818);
  icon.Shape(kBall, Fill(20, 18, 30, 48,
                         {{0, 0x9C4808}, {0.35, 0xE89C18}, {0.7, 0xFCD848}, {1, 0xFFF8B0}}));
  if (size >= 48) {
    icon.Clip(kBall);
    for (int ray = 0; ray < 28; ++ray) {
      icon.Place(36, 33, 1, 1, ray * 6.2831853 / 28);
      icon.Line("M5 0 L13 1.2", ray % 2 == 0 ? 0xB85C10U : 0xFFF0A0U, 0.9, 0.55);
      icon.Replace();
    }
    icon.Ellipse(36, 33, 6.5, 14.5, 0x8C3C08, 0.28);
    icon.Unclip();
  }
  icon.Outlined(kSlit, 0x100410, 0x6C2C08, size >= 32 ? 1.0 : 0.2);
  icon.Clip(kBall);
  icon.Shape("M0 38 Q16 18 42 18.5 Q54 20 64 30 L64 24 Q52 12 40 12 Q16 12 0 34 Z", 0x3C1008, 0.5);
  icon.Unclip();
  icon.Ellipse(26, 28.5, size >= 32 ? 4.6 : 5.6, size >= 32 ? 3.2 : 4.4, 0xFFFFFF);
  if (size >= 48) icon.Ellipse(45, 40, 2.2, 1.5, 0xFFFFFF, 0.8);
}

}  // namespace

Image PaintIcon(int size) {
  constexpr int least_relief = 64;
  if (size >= least_relief) return scene::ToSheet(DrawIconRelief(size));
  Drawing icon(size, size);
  icon.Place(0, 0, size / 64.0, size / 64.0);
  icon.Shape("M0 0 H64 V64 H0 Z",
             Fill(0, 0, 64, 64, {{0, 0xB43828}, {0.5, 0x801C28}, {1, 0x380C20}}));
  if (size >= 32) DrawScales(icon);
  DrawEye(icon, size);
  const double border = size >= 48 ? 1.4 : 2.4;
  icon.Outlined(kBrow, Fill(14, 8, 44, 24, {{0, 0xF48C4C}, {0.5, 0xB43428}, {1, 0x641828}}),
                0x240818, border);
  icon.Outlined(kLid, Fill(20, 46, 30, 60, {{0, 0xB03828}, {1, 0x4C1020}}), 0x240818, border);
  if (size >= 48) {
    icon.Line("M6 29 Q18 10.5 41 10 Q52 11 58 16", 0xFCC088, 1.2, 0.8);
    icon.Line("M10 48 Q20 54 34 54.4 Q50 53 58 42", 0xE86C48, 1.0, 0.6);
  }
  const double frame = size >= 48 ? 2.4 : size >= 24 ? 3 : 4;
  icon.Line("M0 0 H64 V64 H0 Z", 0x180818, frame * 2);
  if (size >= 32) icon.Line("M3.4 3.4 H60.6 V60.6 H3.4 Z", 0xD8A440, 1.6);
  scene::Canvas canvas(size, size);
  icon.LayOn(canvas);
  return scene::ToSheet(canvas);
}

}  // namespace orvane::paint::panel
