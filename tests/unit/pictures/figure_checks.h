// What is asked of figures that stand or float on a ground. Every check returns its faults as
// sentences, none when all is well.
#pragma once

#include "src/ui/surface.h"
#include "tests/unit/pictures/sprite_checks.h"

namespace orvane::pictures {

// The figure has a shadow of at least `least` pixels, which lies in the lowest third of the figure
// and shadow together, and reaches lower than the figure or as low; and without the shadow the
// figure still has as many pixels as it must have.
Faults ShadowFaults(const Surface& sheet, const SpritePair& pair, int least);

// The figure has no hole of `largest` pixels or fewer, through which the ground would glitter.
Faults PinholeFaults(const Surface& sheet, const SpritePair& pair, int largest);

}  // namespace orvane::pictures
