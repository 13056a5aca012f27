// The faces that the game asks for, as this desktop has them.
#pragma once

#include <QFont>
#include <string>

#include "src/ui/control.h"

namespace orvane {

// The font of a control's text, with the nearest face that is installed. Sizes become the pixels
// of 96 to the inch, whatever the screen says of itself.
QFont DesktopFont(const Font& font);

// The font of everything that names none.
QFont DefaultFont();

// What to tell the player of this desktop's faces, or nothing.
std::string DesktopFontHint();

}  // namespace orvane
