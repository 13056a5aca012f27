// What screen readers call the controls that have no caption of their own, and what the numbers
// belong to.
#pragma once

#include <QString>

namespace orvane {

class Control;

// The control's name for screen readers; for a text, what it belongs to; nothing where its caption
// serves.
QString SpokenName(const Control& control);

}  // namespace orvane
