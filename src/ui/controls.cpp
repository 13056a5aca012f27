#include "src/ui/controls.h"

#include "src/ui/screen.h"

namespace orvane {

Holder::Holder(Screen& screen) : Owner(&screen) {}
Holder::Holder(Control& control) : Owner(&control.Owner()), Parent(&control) {}
Holder::Holder(Control& tabs, int pane) : Owner(&tabs.Owner()), Parent(&tabs), Pane(pane) {}

Control::Control(const Holder& holder, std::string name, const Place& place)
    : CommonValues{place, true, true}, holder_(holder), name_(std::move(name)) {
  holder.Owner->Join(*this);
}

const std::string& ListBox::List(int row) const {
  CheckIndex(row, Rows.size());
  return Rows[static_cast<size_t>(row)];
}

void ListBox::SetRow(int row, std::string text) {
  if (row == ListCount()) return AddItem(std::move(text));
  CheckIndex(row, Rows.size());
  Rows[static_cast<size_t>(row)] = std::move(text);
}

void ListBox::Clear() {
  Rows.clear();
  ListIndex = -1;
}

std::string FileListBox::FileName() const {
  if (ListIndex < 0) return "";
  CheckIndex(ListIndex, Rows.size());
  return Rows[static_cast<size_t>(ListIndex)];
}

void TabStrip::SetTab(int tab) {
  CheckIndex(tab, Captions.size());
  if (tab == OpenTab) return;
  OpenTab = tab;
  if (OnClick) OnClick();
}

const std::string& TabStrip::TabCaption(int tab) const {
  CheckIndex(tab, Captions.size());
  return Captions[static_cast<size_t>(tab)];
}

void TabStrip::SetTabCaption(int tab, std::string caption) {
  CheckIndex(tab, Captions.size());
  Captions[static_cast<size_t>(tab)] = std::move(caption);
}

bool TabStrip::TabEnabled(int tab) const {
  CheckIndex(tab, PanesEnabled.size());
  return PanesEnabled[static_cast<size_t>(tab)];
}

void TabStrip::SetTabEnabled(int tab, bool enabled) {
  CheckIndex(tab, PanesEnabled.size());
  PanesEnabled[static_cast<size_t>(tab)] = enabled;
}

void Timer::SetEnabled(bool enabled) {
  if (enabled && !Running) Restarted = true;
  Running = enabled;
}

void Timer::SetInterval(int milliseconds) {
  Milliseconds = milliseconds < 0 ? 0 : milliseconds;
  Restarted = true;
}

void Timer::RestoreDesign() {
  ControlOf::RestoreDesign();
  Restarted = true;
}

bool Timer::Ticks() const {
  return Running && Milliseconds > 0 && Owner().IsLoaded();
}

}  // namespace orvane
