// The game's labels, written as its windows write them.
#pragma once

#include "src/ui/controls.h"
#include "src/ui/surface.h"

namespace orvane::contact {

// Writes the label's caption in its face, colour and alignment, wrapped to its width; `left` and
// `top` are where the inside of what holds it begins. The letters have smooth rims; clipped.
void WriteText(Surface& surface, int left, int top, const Label& label);

}  // namespace orvane::contact
