// What screen readers call the controls that have no caption of their own, and whose the numbers
// are.
#pragma once

#include <QString>

namespace orvane {

class Control;

// The control's name for screen readers, of a text whose it is; nothing where its caption serves.
QString SpokenName(const Control& control);

}  // namespace orvane
