// Which faces stand in for those that the game asks for.
#pragma once

#include <string>
#include <vector>

#include "src/ui/control.h"

namespace orvane {

// The families to try for the face that the game asks for, best first. `japanese` are the installed
// ones that have Japanese letters; the best of them comes after those that the game knows, and a
// generic one last.
std::vector<std::string> Substitutes(const std::string& asked,
                                     const std::vector<std::string>& japanese);

// The height of a font's letters in the pixels of 96 to the inch; at least 1.
int PixelSize(const Font& font);

// What to tell a player in whose system `japanese` are the families with Japanese letters: how to
// come by one where there is none, otherwise nothing.
std::string FontHint(const std::vector<std::string>& japanese);

}  // namespace orvane
