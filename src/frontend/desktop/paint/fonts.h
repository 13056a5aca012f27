// The faces that the game asks for, as this desktop has them.
#pragma once

#include <QFont>
#include <QStringList>
#include <string>

#include "src/ui/control.h"

namespace orvane {

// The font of a control's text, with the nearest face that is installed. Sizes become the pixels
// of 96 to the inch, whatever the screen says of itself.
QFont DesktopFont(const Font& font);

// The font of everything that names none.
QFont DefaultFont();

// The faces to try for the one that the game asks for, best first. `japanese` are the installed
// families that have Japanese letters; the best of them comes after those that the game knows.
QStringList Substitutes(const std::string& asked, const QStringList& japanese);

// What to tell a player on whose desktop `japanese` are the families with Japanese letters: how to
// come by one where there is none, otherwise nothing.
std::string FontHint(const QStringList& japanese);
// The same for the desktop that the program runs on.
std::string FontHint();

}  // namespace orvane
