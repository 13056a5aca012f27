#include "content/pictures/panels/lettering.h"
#include "content/pictures/panels/panels.h"
#include "content/pictures/scenes/drawing.h"

namespace orvane::paint::panel {
using scene::Canvas;
using scene::Drawing;

Image PaintIcon(int size) {
  Canvas canvas(size, size);
  Drawing icon(size, size, 4);
  icon.Place(0, 0, size / 32.0, size / 32.0);
  icon.Shape("M0 0 H32 V32 H0 Z", 0x74101C);
  icon.Outlined("M2 18 Q14 4 30 12 Q22 28 2 18 Z", 0xF4C030, 0x200810, 2);
  icon.Ellipse(17, 15, 2, 7, 0x100408);
  icon.LayOn(canvas);
  return scene::ToSheet(canvas);
}

}  // namespace orvane::paint::panel
