// A control as the kind that it is.
#pragma once

#include "src/ui/controls.h"

namespace orvane {

// Calls `visit` with the control as its own type, for which it has an overload each, and returns
// what that returns; every kind is asked for, so that a new one is forgotten nowhere.
template <class Visitor>
auto VisitControl(Control& control, const Visitor& visit) {
  switch (control.Kind()) {
    case ControlKind::Label:
      return visit(static_cast<Label&>(control));
    case ControlKind::Button:
      return visit(static_cast<CommandButton&>(control));
    case ControlKind::Picture:
      return visit(static_cast<PictureBox&>(control));
    case ControlKind::List:
      return visit(static_cast<ListBox&>(control));
    case ControlKind::FileList:
      return visit(static_cast<FileListBox&>(control));
    case ControlKind::Tabs:
      return visit(static_cast<TabStrip&>(control));
    case ControlKind::Field:
      return visit(static_cast<TextBox&>(control));
    case ControlKind::Slider:
      return visit(static_cast<Slider&>(control));
    case ControlKind::Frame:
      return visit(static_cast<Frame&>(control));
    case ControlKind::Menu:
      return visit(static_cast<MenuItem&>(control));
    case ControlKind::Timer:
      break;
  }
  return visit(static_cast<Timer&>(control));
}

}  // namespace orvane
