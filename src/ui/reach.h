// The one answer to the question what a player can do: which controls can be seen, used and hit.
#pragma once

#include <optional>

#include "src/ui/control.h"
#include "src/ui/stage.h"

namespace orvane {

// A point of a screen's client area, in pixels.
struct Point {
  double X = 0;
  double Y = 0;
};

// Where a control stands on its screen, border included.
Place PlaceOnScreen(const Control& control);

// It and all that hold it are visible, and it stands on an open pane. Says nothing of its screen.
bool IsShown(const Control& control);

// The same, and it does not lie below its screen's window, as sheets do that are only drawn from.
bool IsInView(const Control& control);

// It and all that hold it are enabled.
bool IsEnabled(const Control& control);

// The frontmost shown control at a point of the screen, or null on the bare surface. Text labels
// lie behind the other controls that stand beside them.
Control* ControlAt(const Screen& screen, Point point);

// Whether a press at a point of the screen is the screen's own: nothing but texts stands there.
bool IsBare(const Screen& screen, Point point);

// A point where a click reaches this control and nothing on it or in front of it, or nothing.
std::optional<Point> FreePoint(const Control& control);

// Whether a player can use the control now: its screen takes input, it is shown and enabled.
bool CanUse(const Control& control);

// Whether a player can click it: he can use it, and some part of it is not covered.
bool CanClick(const Control& control);

// What Escape does on a screen: the list in front that has a way back, whose BackRow it chooses, or
// the first of the BackButtons that can be clicked, which it presses; null where it does nothing.
Control* WayBack(const Screen& screen);

}  // namespace orvane
