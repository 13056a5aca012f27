#include "content/pictures/panels/lettering.h"
#include "content/pictures/panels/panels.h"
#include "content/pictures/scenes/drawing.h"

namespace orvane::paint::panel {
namespace {

using scene::Canvas;
using scene::Drawing;

Image RoughFace(uint32_t ground, uint32_t hair, uint32_t iris) {
  Canvas canvas(48, 48);
  Drawing face(48, 48);
  face.Shape("M0 0 H48 V48 H0 Z", ground);
  face.Outlined("M6 40 Q2 4 24 3 Q46 4 42 40 Z", hair, 0x2C1410, 1.1);
  face.Outlined("M11 18 Q11 29 15 34 Q19 39 24 41 Q30 39 34 34 Q38 29 37 18 Q24 8 11 18 Z",
                0xF8CCA0, 0x6C3420, 0.9);
  face.Ellipse(18, 26, 2.6, 3.4, iris);
  face.Ellipse(30, 26, 2.6, 3.4, iris);
  face.LayOn(canvas);
  return scene::ToSheet(canvas);
}

}  // namespace

Image PaintFaceMan() {
  return RoughFace(0x4A70A8, 0x94501C, 0x1C4C8C);
}
Image PaintFaceWoman() {
  return RoughFace(0x886090, 0xD8A030, 0x186038);
}

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
