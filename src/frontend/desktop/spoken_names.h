// What screen readers call the controls that have no caption of their own.
#pragma once

#include <QString>

namespace orvane {

class Control;

// The control's name for screen readers, or nothing where its caption serves.
QString SpokenName(const Control& control);

}  // namespace orvane
