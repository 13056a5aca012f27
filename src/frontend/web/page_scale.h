// How large the game is shown in a page.
#pragma once

#include <vector>

#include "src/frontend/shared/scale.h"

namespace orvane {

struct PageFacts {
  Extent Room;       // for the game's windows, in the display's own pixels
  double Ratio = 1;  // the display's own pixels to one of the page
  double Zoom = 1;   // by which the player has enlarged the page since it came up
  bool FullScreen = false;
  bool IsHandheld = false;  // a small display that is touched
};

// The pixels of the display to one of the game. `windows` are the insides of all windows, the one
// with the menu bar first, `shown` what those that stand take. Whole steps, half ones where whole
// ones leave too much free, or as large as fits where the display is small; below 1 where it is
// tiny.
double PageScale(const PageFacts& page, const std::vector<Extent>& windows,
                 const std::vector<Span>& shown);

}  // namespace orvane
