// Makes the view of a control.
#pragma once

#include <memory>

#include "src/frontend/windows/views/view.h"

namespace orvane {

// The view of a control, on what holds it; null for kinds that have no window.
std::unique_ptr<View> MakeView(Control& control, Ground& ground, const Setting& setting);

// Tells screen readers what the control is called, in the language that is shown.
void NameForReaders(const View& view, const Setting& setting);

}  // namespace orvane
