// The displays that windows stand on.
#pragma once

#include "src/frontend/shared/zoom.h"
#include "src/frontend/windows/system/windows_api.h"

namespace orvane {

// In the pixels of all displays together.
struct Display {
  RECT Whole{};
  RECT Available{};  // without the task bar
};

// The display that has most of the window; the first one for null.
Display DisplayAt(HWND window);
Display DisplayAround(POINT point);

// What is to be known for choosing a scale on the display of a window, whose title bars may be
// higher than the common ones.
ScreenFacts FactsOf(HWND window);
bool IsSameScreen(const ScreenFacts& one, const ScreenFacts& other);

}  // namespace orvane
