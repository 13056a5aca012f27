// Makes the widget of a control.
#pragma once

#include <memory>

#include "src/frontend/desktop/views/control_view.h"

namespace orvane {

// The view of a control, on a widget for what holds it; null for kinds that are no widgets.
std::unique_ptr<ControlView> MakeView(Control& control, QWidget* parent, Events& events);

}  // namespace orvane
