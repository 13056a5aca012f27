#include "src/frontend/desktop/input/focus.h"

#include <algorithm>

#include "src/frontend/desktop/input/nearest.h"
#include "src/frontend/desktop/views/tabs_view.h"

namespace orvane {
namespace {

// Lists and fields are there to be answered.
bool AsksForAnswer(const ControlView& view) {
  const ControlKind kind = view.Model().Kind();
  return kind == ControlKind::Field || kind == ControlKind::List || kind == ControlKind::FileList;
}

int Rank(const ControlView& view) {
  if (AsksForAnswer(view)) return 0;
  return view.Model().Kind() == ControlKind::Slider ? 1 : 2;
}

}  // namespace

Focus::Focus(const QWidget& window, const std::vector<std::unique_ptr<ControlView>>& views)
    : window_(window) {
  for (const auto& view : views) {
    if (QWidget* target = view->KeyTarget()) stops_.push_back({view.get(), target});
  }
  std::stable_sort(stops_.begin(), stops_.end(), [](const Stop& one, const Stop& other) {
    return Rank(*one.View) < Rank(*other.View);
  });
  for (size_t i = 1; i < stops_.size(); ++i) {
    QWidget::setTabOrder(stops_[i - 1].Widget, stops_[i].Widget);
  }
}

const Focus::Stop* Focus::StopOf(const QWidget* widget) const {
  const auto found = std::find_if(stops_.begin(), stops_.end(),
                                  [widget](const Stop& stop) { return stop.Widget == widget; });
  return found == stops_.end() ? nullptr : &*found;
}

bool Focus::IsUsable(const QWidget* widget) const {
  if (widget == nullptr || !widget->isVisibleTo(&window_) || !widget->isEnabled()) return false;
  const Stop* stop = StopOf(widget);
  return stop == nullptr || stop->View->HasUseForKeys();
}

// The tabs that the control stands under, if its pane is not the open one.
QWidget* Focus::TabsAbove(const QWidget* widget) const {
  const Stop* stop = StopOf(widget);
  if (stop == nullptr) return nullptr;
  for (const Control* each = &stop->View->Model(); each != nullptr; each = each->Parent()) {
    if (each->Pane() < 0) continue;
    const auto& tabs = static_cast<const TabStrip&>(*each->Parent());
    if (tabs.Tab() == each->Pane()) continue;
    for (const Stop& other : stops_) {
      if (&other.View->Model() == &tabs) return other.Widget;
    }
  }
  return nullptr;
}

QWidget* Focus::Choose(const QWidget* before) const {
  if (QWidget* tabs = TabsAbove(before); IsUsable(tabs)) return tabs;
  for (const Stop& stop : stops_) {
    if (AsksForAnswer(*stop.View) && IsUsable(stop.Widget)) return stop.Widget;
  }
  // The last that had the keys comes first. One of the compilers cannot reverse a view.
  // NOLINTNEXTLINE(modernize-loop-convert)
  for (auto each = had_keys_.rbegin(); each != had_keys_.rend(); ++each) {
    if (IsUsable(*each)) return *each;
  }
  for (const Stop& stop : stops_) {
    if (IsUsable(stop.Widget)) return stop.Widget;
  }
  return nullptr;
}

void Focus::Begin() {
  had_keys_.clear();
  if (QWidget* first = Choose(nullptr)) first->setFocus();
}

void Focus::Follow(QWidget* before) {
  QWidget* now = window_.focusWidget();
  if (IsUsable(before)) {
    if (now != before) before->setFocus();
    return;
  }
  if (StopOf(before) != nullptr) {
    std::erase(had_keys_, before);
    had_keys_.emplace_back(before);
  }
  QWidget* next = Choose(before);
  if (next != nullptr) return next->setFocus();
  if (now != nullptr) now->clearFocus();
}

void Focus::Move(Key direction) const {
  const QWidget* from = window_.focusWidget();
  if (from == nullptr) return;
  const auto box = [this](const QWidget& widget) {
    return QRect(widget.mapTo(&window_, QPoint()), widget.size());
  };
  std::vector<QWidget*> others;
  std::vector<QRect> boxes;
  for (const Stop& stop : stops_) {
    if (stop.Widget == from || !IsUsable(stop.Widget)) continue;
    others.push_back(stop.Widget);
    boxes.push_back(box(*stop.Widget));
  }
  if (const auto next = Nearest(box(*from), boxes, direction)) {
    others[*next]->setFocus(Qt::OtherFocusReason);
  }
}

bool Focus::TurnTab(int step) const {
  for (const Stop& stop : stops_) {
    if (stop.View->Model().Kind() != ControlKind::Tabs || !IsUsable(stop.Widget)) continue;
    static_cast<const TabsView*>(stop.View)->Turn(step);
    return true;
  }
  return false;
}

}  // namespace orvane
