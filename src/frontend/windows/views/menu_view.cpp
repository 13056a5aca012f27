#include "src/frontend/windows/views/menu_view.h"

#include <utility>

#include "src/frontend/shared/events.h"
#include "src/frontend/windows/system/captions.h"
#include "src/game/program.h"

namespace orvane {
namespace {

constexpr UINT kFirstNumber = 1000;

}  // namespace

MenuView::MenuView(const Screen& screen, Events& events) : events_(events) {
  for (Control* control : screen.Controls()) {
    if (control->Kind() != ControlKind::Menu) continue;
    auto& item = static_cast<MenuItem&>(*control);
    if (item.Parent() == nullptr) {
      AddTop(item);
    } else {
      AddItem(item);
    }
  }
}

std::string MenuView::CaptionOf(const MenuItem& item) const {
  return events_.Texts().Of(item, item.Caption);
}

void MenuView::AddTop(MenuItem& item) {
  if (bar_ == nullptr) bar_ = CreateMenu();
  const HMENU menu = CreatePopupMenu();
  const auto at = static_cast<UINT>(GetMenuItemCount(bar_));
  const std::string caption = CaptionOf(item);
  AppendMenuW(bar_, MF_POPUP, reinterpret_cast<UINT_PTR>(menu), WideCaption(caption).c_str());
  entries_.push_back({&item, bar_, at, menu, caption, {}});
}

void MenuView::AddItem(MenuItem& item) {
  for (const Entry& entry : entries_) {
    if (entry.Model != item.Parent()) continue;
    const HMENU menu = entry.Opens;
    const std::string caption = CaptionOf(item);
    const auto at = static_cast<UINT>(GetMenuItemCount(menu));
    AppendMenuW(menu, item.IsSeparator() ? MF_SEPARATOR : MF_STRING, kFirstNumber + entries_.size(),
                WideCaption(caption).c_str());
    entries_.push_back({&item, menu, at, nullptr, caption, {}});
    return;
  }
}

void MenuView::Follow(HWND window) {
  bool bar_changed = false;
  for (Entry& entry : entries_) {
    const MenuItem& item = *entry.Model;
    std::string shown = CaptionOf(item);
    if (entry.SeenCommon.Enabled == item.Enabled && entry.Shown == shown) continue;
    entry.SeenCommon = item;
    entry.Shown = std::move(shown);
    std::wstring caption = WideCaption(entry.Shown);
    MENUITEMINFOW info{};
    info.cbSize = sizeof info;
    info.fMask = MIIM_STATE;
    if (!item.IsSeparator()) info.fMask |= MIIM_STRING;
    info.fState = item.Enabled ? MFS_ENABLED : MFS_GRAYED;
    info.dwTypeData = caption.data();
    SetMenuItemInfoW(entry.In, entry.At, TRUE, &info);
    bar_changed = bar_changed || entry.Opens != nullptr;
  }
  if (bar_changed) DrawMenuBar(window);
}

void MenuView::Opened(HMENU menu) {
  for (const Entry& entry : entries_) {
    if (entry.Opens != menu) continue;
    events_.Send([&item = *entry.Model](Program& program) { program.Click(item); });
    return;
  }
}

void MenuView::Chosen(UINT number) {
  const size_t index = number - kFirstNumber;
  if (number < kFirstNumber || index >= entries_.size()) return;
  events_.Send([&item = *entries_[index].Model](Program& program) { program.ClickItem(item); });
}

}  // namespace orvane
