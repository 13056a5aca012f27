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
#include "src/frontend/windows/windows/window_events.h"
#include "src/platform/windows/wide_text.h"
#include "src/ui/visit_control.h"

namespace orvane {
namespace {

using Made = std::unique_ptr<View>;

// Makes a view for each kind, on this ground.
struct Maker {
  Ground& On;
  const Setting& With;

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
  template <class Kind, class Model>
  Made Make(Model& model) const {
    return std::make_unique<Kind>(model, On, With);
  }
  template <class List>
  Made MakeList(List& list) const {
    return std::make_unique<ListView>(list, list, On, With);
  }
};

}  // namespace

std::unique_ptr<View> MakeView(Control& control, Ground& ground, const Setting& setting) {
  auto view = VisitControl(control, Maker{ground, setting});
  if (view == nullptr) return view;
  NameForReaders(*view, setting);
  return view;
}

void NameForReaders(const View& view, const Setting& setting) {
  const Translator& texts = setting.TheEvents.Texts();
  const Control& control = view.Model();
  if (control.Kind() == ControlKind::Label) {
    const std::string meaning = texts.Of(SpokenMeaning(control));
    if (!meaning.empty()) Speech::SetDescription(view.Handle(), meaning);
    return;
  }
  const std::string name = texts.Of(SpokenName(control));
  if (control.Kind() == ControlKind::Picture) {
    // It has no other use for the text of its window.
    SetWindowTextW(view.Handle(), Wide(name).c_str());
  } else if (!name.empty()) {
    Speech::SetName(view.Handle(), name);
  }
}

}  // namespace orvane
