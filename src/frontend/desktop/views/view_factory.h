// Makes the widget of a control.
#pragma once

#include <memory>

#include "src/frontend/desktop/views/control_view.h"

namespace orvane {

class Translator;

// The view of a control, on a widget for what holds it; null for kinds that are no widgets.
std::unique_ptr<ControlView> MakeView(Control& control, QWidget* parent, Events& events);

// Tells screen readers what a control is called, in the language that is shown.
void NameForReaders(ControlView& view, const Translator& texts);

}  // namespace orvane
