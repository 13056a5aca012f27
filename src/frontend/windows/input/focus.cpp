#include "src/frontend/windows/input/focus.h"

#include <algorithm>

#include "src/frontend/shared/events.h"

namespace orvane {

Focus::Focus(HWND window, const Screen& screen, const std::vector<std::unique_ptr<View>>& views)
    : window_(window), views_(views), order_(screen) {}

View* Focus::ViewOf(const Control* control) const {
  for (const auto& view : views_) {
    if (&view->Model() == control) return view.get();
  }
  return nullptr;
}

void Focus::GoTo(Control* control) {
  current_ = control;
  if (GetActiveWindow() == window_) Restore();
}

void Focus::Restore() const {
  const View* view = ViewOf(current_);
  const HWND target = view == nullptr ? window_ : view->Handle();
  if (GetFocus() != target) SetFocus(target);
}

void Focus::Begin() {
  GoTo(order_.Begin());
}

void Focus::Follow() {
  Look();
  GoTo(order_.Follow(current_));
}

void Focus::Look() {
  const HWND focus = GetFocus();
  for (Control* stop : order_.Stops()) {
    const View* view = ViewOf(stop);
    if (view != nullptr && view->Handle() == focus) current_ = stop;
  }
}

View* Focus::Current() {
  Look();
  return ViewOf(current_);
}

void Focus::Step(int step) {
  Look();
  if (Control* next = order_.Next(current_, step)) GoTo(next);
}

void Focus::Move(Direction direction) {
  Look();
  if (current_ == nullptr) return;
  if (Control* next = order_.Neighbour(*current_, direction)) GoTo(next);
}

bool Focus::TurnTab(int step, Events& events) const {
  const auto turn = order_.NextTab(step);
  if (!turn) return false;
  events.Send([turn](Program& program) { program.SelectTab(*turn->Tabs, turn->Tab); });
  return true;
}

}  // namespace orvane
