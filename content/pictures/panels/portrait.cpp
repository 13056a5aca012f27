#include "content/pictures/panels/portrait.h"

#include "content/pictures/scenes/drawing.h"

namespace orvane::paint::panel {

Image PaintPortrait(std::span<const Mark> marks) {
  constexpr int size = 48;
  scene::Drawing drawing(size, size);
  for (const Mark& mark : marks) {
    if (mark.within != nullptr) drawing.Clip(mark.within);
    if (mark.fill != kNone) drawing.Shape(mark.path, mark.fill, mark.opacity);
    if (mark.line != kNone) drawing.Line(mark.path, mark.line, mark.width, mark.opacity);
    if (mark.within != nullptr) drawing.Unclip();
  }
  scene::Canvas canvas(size, size);
  drawing.LayOn(canvas);
  return scene::ToSheet(canvas, 64, 0);
}

}  // namespace orvane::paint::panel
