#include "src/frontend/windows/views/tabs_view.h"

#include <algorithm>

#include "src/frontend/shared/focus_order.h"
#include "src/frontend/windows/paint/scale.h"
#include "src/frontend/windows/paint/text_paint.h"
#include "src/frontend/windows/paint/theme.h"
#include "src/frontend/windows/windows/window_events.h"
#include "src/game/program.h"
#include "src/platform/windows/wide_text.h"

namespace orvane {

void PaneGround::PaintGround(HDC context, const RECT& part) {
  PaintPaneGround(Handle(), context, part);
}

TabsView::TabsView(TabStrip& model, const Ground& ground, const Setting& setting)
    : View(model, setting), model_(model) {
  MakeControl(ground, WC_TABCONTROLW, TCS_FIXEDWIDTH | WS_CLIPCHILDREN);
  for (int tab = 0; tab < model.TabCount(); ++tab) {
    TCITEMW item{};
    item.mask = TCIF_TEXT;
    wchar_t nothing[] = L"";
    item.pszText = nothing;
    Ask(TCM_INSERTITEMW, static_cast<WPARAM>(tab), reinterpret_cast<LPARAM>(&item));
    panes_.push_back(std::make_unique<PaneGround>(Handle()));
  }
}

Ground* TabsView::GroundOf(int pane) {
  const auto index = static_cast<size_t>(pane);
  return index < panes_.size() ? panes_[index].get() : nullptr;
}

void TabsView::Open(int tab) {
  TheSetting().TheEvents.Send([this, tab](Program& program) { program.SelectTab(model_, tab); });
}

void TabsView::Notice(UINT code) {
  if (code == static_cast<UINT>(TCN_SELCHANGE)) Open(static_cast<int>(Ask(TCM_GETCURSEL)));
}

void TabsView::Turn(int step) {
  for (int tab = model_.Tab() + step; tab >= 0 && tab < model_.TabCount(); tab += step) {
    if (model_.TabEnabled(tab)) return Open(tab);
  }
}

bool TabsView::TakeBefore(UINT message, WPARAM w, LPARAM l, LRESULT& result) {
  switch (message) {
    case WM_ERASEBKGND:
      result = 1;
      return true;
    case WM_PAINT:
      Paint();
      result = 0;
      return true;
    case WM_PRINTCLIENT:
      PaintAll(reinterpret_cast<HDC>(w));
      result = 0;
      return true;
    case WM_LBUTTONDOWN: {
      TCHITTESTINFO at{{GET_X_LPARAM(l), GET_Y_LPARAM(l)}, 0};
      const auto tab = static_cast<int>(Ask(TCM_HITTEST, 0, reinterpret_cast<LPARAM>(&at)));
      result = 0;
      return tab >= 0 && tab < model_.TabCount() && !model_.TabEnabled(tab);
    }
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
      InvalidateRect(Handle(), nullptr, FALSE);
      return false;
    default:
      return false;
  }
}

void TabsView::Paint() {
  PAINTSTRUCT paint;
  PaintAll(BeginPaint(Handle(), &paint));
  EndPaint(Handle(), &paint);
}

void TabsView::PaintAll(HDC context) {
  const RECT inside = Inside();
  FillRect(context, &inside, GetSysColorBrush(COLOR_BTNFACE));
  RECT frame = inside;
  frame.top = ToScreen(kTabHeight, Scale()) - 1;
  PaintPaneFrame(Handle(), context, frame);
  SelectObject(context, TheSetting().TheFonts.Get({}, LetterPixels({}, Scale())));
  SetBkMode(context, TRANSPARENT);
  for (int tab = 0; tab < model_.TabCount(); ++tab) {
    RECT box{};
    Ask(TCM_GETITEMRECT, static_cast<WPARAM>(tab), reinterpret_cast<LPARAM>(&box));
    const bool is_open = tab == seen_.OpenTab;
    const bool is_on = seen_.PanesEnabled[static_cast<size_t>(tab)];
    box.bottom = frame.top + (is_open ? 1 : 0);
    box.top = is_open ? 0 : 2;
    PaintTab(Handle(), context, box,
             is_open ? TabLook::Open : (is_on ? TabLook::Closed : TabLook::Disabled));
    const std::wstring caption = Wide(Shown(seen_.Captions[static_cast<size_t>(tab)]));
    SetTextColor(context, GetSysColor(is_on ? COLOR_WINDOWTEXT : COLOR_GRAYTEXT));
    DrawTextW(context, caption.c_str(), static_cast<int>(caption.size()), &box,
              DT_NOPREFIX | DT_SINGLELINE | DT_CENTER | DT_VCENTER);
    if (!is_open || GetFocus() != Handle()) continue;
    InflateRect(&box, -3, -3);
    DrawFocusRect(context, &box);
  }
}

void TabsView::LayOut() {
  const RECT inside = Inside();
  const int count = std::max(1, model_.TabCount());
  const int height = ToScreen(kTabHeight, Scale());
  Ask(TCM_SETITEMSIZE, 0, MAKELPARAM((inside.right - 4) / count, height - 2));
  const Place whole = {0, 0, model_.At.Width, model_.At.Height};
  for (const auto& pane : panes_) {
    const RECT box = ToScreen(whole, Scale());
    SetWindowPos(pane->Handle(), nullptr, box.left, box.top, box.right, box.bottom,
                 SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOCOPYBITS);
    // Its own part begins below the tabs and within the frame.
    SetWindowRgn(pane->Handle(), CreateRectRgn(box.left + 1, height, box.right - 2, box.bottom - 2),
                 TRUE);
  }
}

void TabsView::FollowValues(bool all) {
  if (all) LayOut();
  const auto same = [&] {
    return seen_.Captions == model_.Captions && seen_.PanesEnabled == model_.PanesEnabled &&
           seen_.OpenTab == model_.OpenTab;
  };
  if (!all && same() && Ask(TCM_GETCURSEL) == model_.Tab()) return;
  for (int tab = 0; tab < model_.TabCount(); ++tab) {
    std::wstring caption = Wide(Shown(model_.TabCaption(tab)));
    TCITEMW item{};
    item.mask = TCIF_TEXT;
    item.pszText = caption.data();
    Ask(TCM_SETITEMW, static_cast<WPARAM>(tab), reinterpret_cast<LPARAM>(&item));
    SetWindowTextW(panes_[static_cast<size_t>(tab)]->Handle(), caption.c_str());
  }
  seen_ = model_;
  Ask(TCM_SETCURSEL, static_cast<WPARAM>(model_.Tab()));
  for (size_t pane = 0; pane < panes_.size(); ++pane) {
    const bool is_open = static_cast<int>(pane) == model_.Tab();
    ShowWindow(panes_[pane]->Handle(), is_open ? SW_SHOWNA : SW_HIDE);
  }
  InvalidateRect(Handle(), nullptr, FALSE);
}

}  // namespace orvane
