#include "src/frontend/shared/texts/control_texts.h"

#include "src/ui/controls.h"

namespace orvane {

std::vector<std::string> TextsOf(const Control& control) {
  switch (control.Kind()) {
    case ControlKind::Label:
      return {static_cast<const Label&>(control).Caption};
    case ControlKind::Button:
      return {static_cast<const CommandButton&>(control).Caption};
    case ControlKind::Frame:
      return {static_cast<const Frame&>(control).Caption};
    case ControlKind::Menu:
      return {static_cast<const MenuItem&>(control).Caption};
    case ControlKind::List:
      return static_cast<const ListBox&>(control).Rows;
    case ControlKind::Tabs:
      return static_cast<const TabStrip&>(control).Captions;
    case ControlKind::FileList:
    case ControlKind::Field:
    case ControlKind::Picture:
    case ControlKind::Slider:
    case ControlKind::Timer:
      break;
  }
  return {};
}

}  // namespace orvane
