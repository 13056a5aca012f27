#include "src/frontend/desktop/views/view_factory.h"

#include "src/frontend/desktop/views/button_view.h"
#include "src/frontend/desktop/views/field_view.h"
#include "src/frontend/desktop/views/frame_view.h"
#include "src/frontend/desktop/views/label_view.h"
#include "src/frontend/desktop/views/list_view.h"
#include "src/frontend/desktop/views/picture_view.h"
#include "src/frontend/desktop/views/slider_view.h"
#include "src/frontend/desktop/views/tabs_view.h"
#include "src/frontend/desktop/windows/events.h"
#include "src/frontend/shared/spoken_names.h"
#include "src/frontend/shared/spoken_text.h"

namespace orvane {
namespace {

std::unique_ptr<ControlView> MakeKind(Control& control, QWidget* parent, Events& events) {
  switch (control.Kind()) {
    case ControlKind::Label:
      return std::make_unique<LabelView>(static_cast<Label&>(control), parent, events);
    case ControlKind::Button:
      return std::make_unique<ButtonView>(static_cast<CommandButton&>(control), parent, events);
    case ControlKind::Picture:
      return std::make_unique<PictureView>(static_cast<PictureBox&>(control), parent, events);
    case ControlKind::List: {
      auto& list = static_cast<ListBox&>(control);
      return std::make_unique<ListView>(list, list, parent, events);
    }
    case ControlKind::FileList: {
      auto& list = static_cast<FileListBox&>(control);
      return std::make_unique<ListView>(list, list, parent, events);
    }
    case ControlKind::Tabs:
      return std::make_unique<TabsView>(static_cast<TabStrip&>(control), parent, events);
    case ControlKind::Field:
      return std::make_unique<FieldView>(static_cast<TextBox&>(control), parent, events);
    case ControlKind::Slider:
      return std::make_unique<SliderView>(static_cast<Slider&>(control), parent, events);
    case ControlKind::Frame:
      return std::make_unique<FrameView>(static_cast<Frame&>(control), parent, events);
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

std::unique_ptr<ControlView> MakeView(Control& control, QWidget* parent, Events& events) {
  auto view = MakeKind(control, parent, events);
  if (view == nullptr) return view;
  view->Widget()->setObjectName(ToQt(control.Name()));
  NameForReaders(*view, events.Texts());
  return view;
}

void NameForReaders(ControlView& view, const Translator& texts) {
  const Control& control = view.Model();
  if (control.Kind() == ControlKind::Label) {
    view.Widget()->setAccessibleDescription(ToQt(texts.Of(Meaning(control))));
  } else {
    view.SetSpokenName(ToQt(texts.Of(SpokenName(control))));
  }
}

}  // namespace orvane
