#include "src/frontend/shared/focus_order.h"

#include <algorithm>
#include <cmath>

#include "src/frontend/shared/nearest.h"
#include "src/ui/reach.h"

namespace orvane {
namespace {

// Whether keys can be meant for a control of this kind.
bool TakesKeys(ControlKind kind) {
  switch (kind) {
    case ControlKind::Button:
    case ControlKind::List:
    case ControlKind::FileList:
    case ControlKind::Tabs:
    case ControlKind::Field:
    case ControlKind::Slider:
      return true;
    default:
      return false;
  }
}

// Lists and fields are there to be answered.
bool AsksForAnswer(const Control& control) {
  const ControlKind kind = control.Kind();
  return kind == ControlKind::Field || kind == ControlKind::List || kind == ControlKind::FileList;
}

int Rank(const Control& control) {
  if (AsksForAnswer(control)) return 0;
  return control.Kind() == ControlKind::Slider ? 1 : 2;
}

bool HasTabToOpen(const TabStrip& tabs) {
  for (int tab = 0; tab < tabs.TabCount(); ++tab) {
    if (tabs.TabEnabled(tab)) return true;
  }
  return false;
}

bool IsUsable(const Control& control) {
  if (!IsShown(control) || !IsEnabled(control)) return false;
  return control.Kind() != ControlKind::Tabs || HasTabToOpen(static_cast<const TabStrip&>(control));
}

// The tabs that the control stands under, if its pane is not the open one.
Control* TabsAbove(const Control& control) {
  for (const Control* each = &control; each != nullptr; each = each->Parent()) {
    if (each->Pane() < 0) continue;
    auto& tabs = static_cast<TabStrip&>(*each->Parent());
    if (tabs.Tab() != each->Pane()) return &tabs;
  }
  return nullptr;
}

// Where the player sees what takes the keys.
Rect BoxOf(const Control& control) {
  const Place place = PlaceOnScreen(control);
  const auto round = [](double pixels) { return static_cast<int>(std::lround(pixels)); };
  const bool is_tabs = control.Kind() == ControlKind::Tabs;
  return {round(place.Left), round(place.Top), round(place.Width),
          is_tabs ? kTabHeight : round(place.Height)};
}

}  // namespace

FocusOrder::FocusOrder(const Screen& screen) {
  for (Control* control : screen.Controls()) {
    if (TakesKeys(control->Kind())) stops_.push_back(control);
  }
  std::stable_sort(stops_.begin(), stops_.end(), [](const Control* one, const Control* other) {
    return Rank(*one) < Rank(*other);
  });
}

Control* FocusOrder::Choose(const Control* before) const {
  Control* tabs = before == nullptr ? nullptr : TabsAbove(*before);
  if (tabs != nullptr && IsUsable(*tabs)) return tabs;
  for (Control* stop : stops_) {
    if (AsksForAnswer(*stop) && IsUsable(*stop)) return stop;
  }
  // The last that had the keys comes first. A reversed view is beyond one of the compilers.
  // NOLINTNEXTLINE(modernize-loop-convert)
  for (auto each = had_keys_.rbegin(); each != had_keys_.rend(); ++each) {
    if (IsUsable(**each)) return *each;
  }
  for (Control* stop : stops_) {
    if (IsUsable(*stop)) return stop;
  }
  return nullptr;
}

Control* FocusOrder::Begin() {
  had_keys_.clear();
  return Choose(nullptr);
}

Control* FocusOrder::Follow(Control* before) {
  if (before == nullptr) return Choose(nullptr);
  if (IsUsable(*before)) return before;
  std::erase(had_keys_, before);
  had_keys_.push_back(before);
  return Choose(before);
}

Control* FocusOrder::Next(const Control* from, int step) const {
  const auto count = static_cast<int>(stops_.size());
  const auto found = std::find(stops_.begin(), stops_.end(), from);
  int at = step > 0 ? -1 : count;
  if (found != stops_.end()) at = static_cast<int>(found - stops_.begin());
  for (int tries = 0; tries < count; ++tries) {
    at = (at + step + count) % count;
    Control* stop = stops_[static_cast<size_t>(at)];
    if (IsUsable(*stop)) return stop;
  }
  return nullptr;
}

Control* FocusOrder::Neighbour(const Control& from, Direction direction) const {
  std::vector<Control*> others;
  std::vector<Rect> boxes;
  for (Control* stop : stops_) {
    if (stop == &from || !IsUsable(*stop)) continue;
    others.push_back(stop);
    boxes.push_back(BoxOf(*stop));
  }
  const auto next = Nearest(BoxOf(from), boxes, direction);
  return next ? others[*next] : nullptr;
}

std::optional<FocusOrder::Turn> FocusOrder::NextTab(int step) const {
  for (Control* stop : stops_) {
    if (stop->Kind() != ControlKind::Tabs || !IsUsable(*stop)) continue;
    auto& tabs = static_cast<TabStrip&>(*stop);
    const int count = tabs.TabCount();
    int tab = tabs.Tab();
    for (int tries = 1; tries < count; ++tries) {
      tab = (tab + step + count) % count;
      if (tabs.TabEnabled(tab)) return Turn{&tabs, tab};
    }
    return Turn{&tabs, tabs.Tab()};
  }
  return std::nullopt;
}

}  // namespace orvane
