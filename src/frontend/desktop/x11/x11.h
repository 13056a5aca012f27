// What is asked of an X server itself, beyond what the toolkit asks. Where the program was built
// without the X library, or runs elsewhere than under X11, nothing is.
#pragma once

#include <optional>

#include "src/frontend/shared/held_keys.h"

class QWidget;

namespace orvane {

// The keys that are held down at this moment, whoever has the keyboard.
std::optional<KeyCodes> AskKeyboard();

// Lets the window system itself lay the window's ground colour. A window manager may round a
// window's size so that some of its last pixels are no whole unit of the toolkit, which never
// paints them. The window must exist on the window system's side.
void LayGround(const QWidget& window);

}  // namespace orvane
