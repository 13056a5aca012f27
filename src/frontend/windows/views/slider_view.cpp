#include "src/frontend/windows/views/slider_view.h"

#include "src/frontend/windows/paint/scale.h"
#include "src/frontend/windows/windows/window_events.h"
#include "src/game/program.h"

namespace orvane {

SliderView::SliderView(Slider& model, const Ground& ground, const Setting& setting)
    : View(model, setting), model_(model) {
  MakeControl(ground, TRACKBAR_CLASSW, TBS_HORZ | TBS_AUTOTICKS | TBS_FIXEDLENGTH);
}

void SliderView::Notice(UINT /*code*/) {
  const auto value = static_cast<int>(Ask(TBM_GETPOS));
  // It reports its place more than once, also when that has not changed.
  if (value == model_.Value) return;
  TheSetting().TheEvents.Send([this, value](Program& program) { program.Slide(model_, value); });
}

void SliderView::FollowValues(bool all) {
  if (all) {
    constexpr double thumb = 16;
    Ask(TBM_SETRANGEMIN, FALSE, model_.Min);
    Ask(TBM_SETRANGEMAX, FALSE, model_.Max);
    Ask(TBM_SETTICFREQ, static_cast<WPARAM>(model_.SmallChange));
    Ask(TBM_SETLINESIZE, 0, model_.SmallChange);
    Ask(TBM_SETPAGESIZE, 0, model_.LargeChange);
    Ask(TBM_SETTHUMBLENGTH, static_cast<WPARAM>(ToScreen(thumb, Scale())));
  }
  if (Ask(TBM_GETPOS) != model_.Value) Ask(TBM_SETPOS, TRUE, model_.Value);
}

}  // namespace orvane
