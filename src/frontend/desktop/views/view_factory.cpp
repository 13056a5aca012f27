#include "src/frontend/desktop/views/view_factory.h"

#include "src/frontend/desktop/views/button_view.h"
#include "src/frontend/desktop/views/field_view.h"
#include "src/frontend/desktop/views/frame_view.h"
#include "src/frontend/desktop/views/label_view.h"
#include "src/frontend/desktop/views/list_view.h"
#include "src/frontend/desktop/views/picture_view.h"
#include "src/frontend/desktop/views/slider_view.h"
#include "src/frontend/desktop/views/tabs_view.h"
#include "src/frontend/shared/events.h"
#include "src/frontend/shared/spoken_names.h"
#include "src/frontend/shared/spoken_text.h"
#include "src/ui/visit_control.h"

namespace orvane {
namespace {

using Made = std::unique_ptr<ControlView>;

// Makes a view for each kind, on this widget.
struct Maker {
  QWidget* On;
  Events& TheEvents;

  Made operator()(Label& label) const { return Make<LabelView>(label); }
  Made operator()(Frame& frame) const { return Make<FrameView>(frame); }
  Made operator()(CommandButton& button) const { return Make<ButtonView>(button); }
  Made operator()(PictureBox& picture) const { return Make<PictureView>(picture); }
  Made operator()(ListBox& list) const { return MakeList(list); }
  Made operator()(FileListBox& list) const { return MakeList(list); }
  Made operator()(TabStrip& tabs) const { return Make<TabsView>(tabs); }
  Made operator()(TextBox& field) const { return Make<FieldView>(field); }
  Made operator()(Slider& slider) const { return Make<SliderView>(slider); }
  Made operator()(MenuItem& /*item*/) const { return nullptr; }
  Made operator()(Timer& /*timer*/) const { return nullptr; }

 private:
  template <class View, class Model>
  Made Make(Model& model) const {
    return std::make_unique<View>(model, On, TheEvents);
  }
  template <class List>
  Made MakeList(List& list) const {
    return std::make_unique<ListView>(list, list, On, TheEvents);
  }
};

}  // namespace

std::unique_ptr<ControlView> MakeView(Control& control, QWidget* parent, Events& events) {
  auto view = VisitControl(control, Maker{parent, events});
  if (view == nullptr) return view;
  view->Widget()->setObjectName(ToQt(control.Name()));
  NameForReaders(*view, events.Texts());
  return view;
}

void NameForReaders(ControlView& view, const Translator& texts) {
  const Control& control = view.Model();
  if (control.Kind() == ControlKind::Label) {
    view.Widget()->setAccessibleDescription(ToQt(texts.Of(SpokenMeaning(control))));
  } else {
    view.SetSpokenName(ToQt(texts.Of(SpokenName(control))));
  }
}

}  // namespace orvane
