#include "src/ui/reach.h"

#include <algorithm>
#include <vector>

#include "src/ui/controls.h"

namespace orvane {
namespace {

bool Holds(const Place& place, Point point) {
  return point.X >= place.Left && point.Y >= place.Top && point.X < place.Left + place.Width &&
         point.Y < place.Top + place.Height;
}

bool TakesMouse(const Control& control) {
  return control.Kind() != ControlKind::Timer && control.Kind() != ControlKind::Menu;
}

// Whether `control` lies on an open pane, if on a pane at all.
bool OnOpenPane(const Control& control) {
  if (control.Pane() < 0) return true;
  return static_cast<const TabStrip&>(*control.Parent()).Tab() == control.Pane();
}

// The frontmost shown control at the point among those that `parent` holds, going down into them.
Control* FrontChild(const Screen& screen, const Control* parent, Point point) {
  Control* found = nullptr;
  for (const bool labels : {true, false}) {
    for (Control* control : screen.Controls()) {
      if (control->Parent() != parent || !TakesMouse(*control) || !control->Visible) continue;
      if ((control->Kind() == ControlKind::Label) != labels || !OnOpenPane(*control)) continue;
      if (Holds(PlaceOnScreen(*control), point)) found = control;
    }
  }
  if (found == nullptr) return nullptr;
  Control* deeper = FrontChild(screen, found, point);
  return deeper != nullptr ? deeper : found;
}

// Where the edges of the screen's controls cut one axis: a cover can only begin or end there.
template <class Begin, class End>
std::vector<double> Cuts(const Control& control, double from, double to, Begin begin, End end) {
  std::vector<double> cuts = {from};
  for (const Control* other : control.Owner().Controls()) {
    if (!TakesMouse(*other)) continue;
    const Place place = PlaceOnScreen(*other);
    for (const double cut : {begin(place), end(place)}) {
      if (cut > from && cut < to) cuts.push_back(cut);
    }
  }
  return cuts;
}

}  // namespace

Place PlaceOnScreen(const Control& control) {
  Place place = control.At;
  for (const Control* holder = control.Parent(); holder != nullptr; holder = holder->Parent()) {
    place.Left += holder->At.Left + holder->Border();
    place.Top += holder->At.Top + holder->Border();
  }
  return place;
}

bool IsShown(const Control& control) {
  for (const Control* each = &control; each != nullptr; each = each->Parent()) {
    if (!each->Visible || !OnOpenPane(*each)) return false;
  }
  return true;
}

bool IsInView(const Control& control) {
  return IsShown(control) && PlaceOnScreen(control).Top < control.Owner().Height;
}

bool IsEnabled(const Control& control) {
  for (const Control* each = &control; each != nullptr; each = each->Parent()) {
    if (!each->Enabled) return false;
  }
  return true;
}

Control* ControlAt(const Screen& screen, Point point) {
  return FrontChild(screen, nullptr, point);
}

bool IsBare(const Screen& screen, Point point) {
  const Control* control = ControlAt(screen, point);
  return control == nullptr ||
         (control->Kind() == ControlKind::Label && control->Parent() == nullptr);
}

std::optional<Point> FreePoint(const Control& control) {
  const Place place = PlaceOnScreen(control);
  const Screen& screen = control.Owner();
  const double left = std::max(0.0, place.Left);
  const double top = std::max(0.0, place.Top);
  const double right = std::min<double>(screen.Width, place.Left + place.Width);
  const double bottom = std::min<double>(screen.Height, place.Top + place.Height);
  if (left >= right || top >= bottom) return std::nullopt;
  const auto xs = Cuts(
      control, left, right, [](const Place& p) { return p.Left; },
      [](const Place& p) { return p.Left + p.Width; });
  const auto ys = Cuts(
      control, top, bottom, [](const Place& p) { return p.Top; },
      [](const Place& p) { return p.Top + p.Height; });
  for (const double y : ys) {
    for (const double x : xs) {
      if (ControlAt(screen, {x, y}) == &control) return Point{x, y};
    }
  }
  return std::nullopt;
}

bool CanUse(const Control& control) {
  return control.Owner().TheStage().TakesInput(control.Owner()) && IsShown(control) &&
         IsEnabled(control);
}

bool CanClick(const Control& control) {
  if (!CanUse(control)) return false;
  return control.Kind() == ControlKind::Menu || FreePoint(control).has_value();
}

Control* WayBack(const Screen& screen) {
  ListBox* front = nullptr;
  for (Control* control : screen.Controls()) {
    if (control->Kind() != ControlKind::List || !CanClick(*control)) continue;
    auto* list = static_cast<ListBox*>(control);
    if (list->BackRow >= 0 && list->BackRow < list->ListCount()) front = list;
  }
  if (front != nullptr) return front;
  for (CommandButton* button : screen.BackButtons) {
    if (CanClick(*button)) return button;
  }
  return nullptr;
}

}  // namespace orvane
