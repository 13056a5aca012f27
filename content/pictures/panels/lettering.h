// Letters as shapes with hard edges, for pictures that are combined through masks.
#pragma once

#include <cstdint>
#include <string>

#include "content/pictures/scenes/drawing.h"

namespace orvane::paint::panel {

// A line of text: UTF-8, its face as fontconfig knows it, its size in pixels (the height of an em).
struct Lettering {
  std::string Text;
  std::string Face;
  double Size = 0;
  double Spacing = 0;  // between letters, in pixels
};

// Lays the text's outline as the current path of the drawing's context, centred on (x, y); the
// caller fills or strokes it.
void TraceText(scene::Drawing& drawing, const Lettering& lettering, double x, double y);

}  // namespace orvane::paint::panel
