#include "content/pictures/panels/portrait.h"

#include "content/pictures/scenes/drawing.h"

namespace orvane::paint::panel {

Image PaintPortrait(std::span<const Mark> marks) {
  constexpr int size = 48;
  scene::Drawing drawing(size, size);
  for (const Mark& mark : marks) {
    if (mark.Within != nullptr) drawing.Clip(mark.Within);
    if (mark.Fill != kNone) drawing.Shape(mark.Path, mark.Fill, mark.Opacity);
    if (mark.line != kNone) drawing.Line(mark.Path, mark.line, mark.Width, mark.Opacity);
    if (mark.Within != nullptr) drawing.Unclip();
  }
  scene::Canvas canvas(size, size);
  drawing.LayOn(canvas);
  return scene::ToSheet(canvas, 64, 0);
}

}  // namespace orvane::paint::panel
