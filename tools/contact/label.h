// Small white lettering for names.
#pragma once

#include <string>

#include "src/ui/surface.h"

namespace orvane::contact {

constexpr int kLabelHeight = 16;

// How wide DrawLabel writes a text, in pixels.
int LabelWidth(const std::string& text);

// Writes UTF-8 text with its box's top left corner at (x, y); clipped.
void DrawLabel(Surface& surface, int x, int y, const std::string& text);

}  // namespace orvane::contact
