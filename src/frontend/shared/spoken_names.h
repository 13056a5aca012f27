// What screen readers call the controls that have no caption of their own, and whose the numbers
// are.
#pragma once

#include <string>

namespace orvane {

class Control;

// The control's name for screen readers, or of a text that is a number whose number it is; nothing
// where its caption serves.
std::string SpokenName(const Control& control);

}  // namespace orvane
