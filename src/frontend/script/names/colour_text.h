// Colours as scripts write them: "RRGGBB", two hexadecimal digits each.
#pragma once

#include <string>
#include <string_view>

#include "src/ui/surface.h"

namespace orvane {

// With the letters A to F.
std::string ColourText(Colour colour);

// Throws ScriptError for anything but six hexadecimal digits.
Colour ParseColour(std::string_view text);

}  // namespace orvane
