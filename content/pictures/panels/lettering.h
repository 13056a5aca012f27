// Letters as shapes with hard edges, for pictures that are combined through masks.
#pragma once

#include <cstdint>
#include <string>

#include "content/pictures/scenes/drawing.h"

namespace orvane::paint::panel {

// A line of text: UTF-8, its face as fontconfig knows it, its size in pixels (the height of an em),
// and how much bolder than the face it stands, in pixels.
struct Lettering {
  std::string text;
  std::string face;
  double size = 0;
  double boldness = 0;
  double spacing = 0;  // between letters, in pixels
};

// The text's outline as a path of the drawing's context, centred on (x, y); the caller fills it.
void TraceText(scene::Drawing& drawing, const Lettering& lettering, double x, double y);

}  // namespace orvane::paint::panel
