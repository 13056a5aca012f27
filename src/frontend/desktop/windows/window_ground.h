// What shows of a window where nothing has been painted.
#pragma once

class QWidget;

namespace orvane {

// Lets the window system itself lay the window's ground colour. A window manager may round a
// window's size so that some of its last pixels are no whole unit of the toolkit, which never
// paints them. Elsewhere than under X11 it does nothing. The window must exist on the window
// system's side.
void LayGround(const QWidget& window);

}  // namespace orvane
