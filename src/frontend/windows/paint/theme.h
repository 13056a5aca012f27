// Parts of controls as the system's theme has them, plain where it has none.
#pragma once

#include <string>

#include "src/frontend/windows/system/windows_api.h"

namespace orvane {

// The ground of the window that holds tabs' panes.
void PaintPaneGround(HWND window, HDC context, const RECT& part);

enum class TabLook { Closed, Open, Disabled };

// A tab without its caption.
void PaintTab(HWND window, HDC context, const RECT& box, TabLook look);

// The frame around the panes.
void PaintPaneFrame(HWND window, HDC context, const RECT& box);

// A titled frame's line, which the title interrupts.
void PaintFrameLine(HWND window, HDC context, const RECT& box);

}  // namespace orvane
