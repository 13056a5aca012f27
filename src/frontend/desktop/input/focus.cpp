#include "src/frontend/desktop/input/focus.h"

#include "src/frontend/desktop/views/tabs_view.h"

namespace orvane {

Focus::Focus(const QWidget& window, const Screen& screen,
             const std::vector<std::unique_ptr<ControlView>>& views)
    : window_(window), views_(views), order_(screen) {
  QWidget* before = nullptr;
  for (const Control* stop : order_.Stops()) {
    QWidget* target = TargetOf(stop);
    if (before != nullptr) QWidget::setTabOrder(before, target);
    before = target;
  }
}

ControlView* Focus::ViewOf(const Control* control) const {
  for (const auto& view : views_) {
    if (&view->Model() == control) return view.get();
  }
  return nullptr;
}

QWidget* Focus::TargetOf(const Control* control) const {
  const ControlView* view = ViewOf(control);
  return view == nullptr ? nullptr : view->KeyTarget();
}

Control* Focus::ControlOf(const QWidget* widget) const {
  if (widget == nullptr) return nullptr;
  for (Control* stop : order_.Stops()) {
    if (TargetOf(stop) == widget) return stop;
  }
  return nullptr;
}

void Focus::Begin() {
  if (QWidget* first = TargetOf(order_.Begin())) first->setFocus();
}

void Focus::Follow(QWidget* before) {
  QWidget* now = window_.focusWidget();
  Control* had_it = ControlOf(before);
  const bool is_other = before != nullptr && had_it == nullptr;
  // A menu bar keeps the keyboard as long as it likes.
  QWidget* next = is_other && before->isVisibleTo(&window_) && before->isEnabled()
                      ? before
                      : TargetOf(order_.Follow(had_it));
  if (next == now) return;
  if (next != nullptr) return next->setFocus();
  now->clearFocus();
}

void Focus::Move(Direction direction) const {
  const Control* from = ControlOf(window_.focusWidget());
  if (from == nullptr) return;
  if (QWidget* next = TargetOf(order_.Neighbour(*from, direction))) {
    next->setFocus(Qt::OtherFocusReason);
  }
}

bool Focus::TurnTab(int step) const {
  const auto turn = order_.NextTab(step);
  if (!turn) return false;
  static_cast<const TabsView*>(ViewOf(turn->Tabs))->Open(turn->Tab);
  return true;
}

}  // namespace orvane
