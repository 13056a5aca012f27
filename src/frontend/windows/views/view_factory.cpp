#include "src/frontend/windows/views/view_factory.h"

#include "src/frontend/shared/spoken_names.h"
#include "src/frontend/shared/spoken_text.h"
#include "src/frontend/windows/views/button_view.h"
#include "src/frontend/windows/views/field_view.h"
#include "src/frontend/windows/views/frame_view.h"
#include "src/frontend/windows/views/label_view.h"
#include "src/frontend/windows/views/list_view.h"
#include "src/frontend/windows/views/picture_view.h"
#include "src/frontend/windows/views/slider_view.h"
#include "src/frontend/windows/views/tabs_view.h"

namespace orvane {
namespace {

std::unique_ptr<View> MakeKind(Control& control, Ground& ground, const Setting& setting) {
  switch (control.Kind()) {
    case ControlKind::Label:
      return std::make_unique<LabelView>(static_cast<Label&>(control), ground, setting);
    case ControlKind::Button:
      return std::make_unique<ButtonView>(static_cast<CommandButton&>(control), ground, setting);
    case ControlKind::Picture:
      return std::make_unique<PictureView>(static_cast<PictureBox&>(control), ground, setting);
    case ControlKind::List: {
      auto& list = static_cast<ListBox&>(control);
      return std::make_unique<ListView>(list, list, ground, setting);
    }
    case ControlKind::FileList: {
      auto& list = static_cast<FileListBox&>(control);
      return std::make_unique<ListView>(list, list, ground, setting);
    }
    case ControlKind::Tabs:
      return std::make_unique<TabsView>(static_cast<TabStrip&>(control), ground, setting);
    case ControlKind::Field:
      return std::make_unique<FieldView>(static_cast<TextBox&>(control), ground, setting);
    case ControlKind::Slider:
      return std::make_unique<SliderView>(static_cast<Slider&>(control), ground, setting);
    case ControlKind::Frame:
      return std::make_unique<FrameView>(static_cast<Frame&>(control), ground, setting);
    case ControlKind::Menu:
    case ControlKind::Timer:
      break;
  }
  return nullptr;
}

// A text is its own name; what a number is the number of, the text does not say.
std::string Meaning(const Control& control) {
  const std::string whose = SpokenName(control);
  return whose.empty() ? CaptionBeside(control) : whose;
}

}  // namespace

std::unique_ptr<View> MakeView(Control& control, Ground& ground, const Setting& setting) {
  auto view = MakeKind(control, ground, setting);
  if (view == nullptr) return view;
  if (control.Kind() == ControlKind::Label) {
    setting.TheSpeech.SetDescription(view->Handle(), Meaning(control));
  } else {
    setting.TheSpeech.SetName(view->Handle(), SpokenName(control));
  }
  return view;
}

}  // namespace orvane
