#include "src/frontend/windows/paint/theme.h"

// clang-format off
#include <uxtheme.h>
#include <vssym32.h>
// clang-format on

namespace orvane {
namespace {

// The theme of a kind of control while it is painted.
class Theme {
 public:
  Theme(HWND window, const wchar_t* kind) : theme_(OpenThemeData(window, kind)) {}
  ~Theme() {
    if (theme_ != nullptr) CloseThemeData(theme_);
  }
  Theme(const Theme&) = delete;
  Theme& operator=(const Theme&) = delete;

  bool Paint(HDC context, int part, int state, const RECT& box) const {
    return theme_ != nullptr &&
           SUCCEEDED(DrawThemeBackground(theme_, context, part, state, &box, nullptr));
  }

 private:
  HTHEME theme_;
};

int StateOf(TabLook look) {
  switch (look) {
    case TabLook::Open:
      return TIS_SELECTED;
    case TabLook::Disabled:
      return TIS_DISABLED;
    case TabLook::Closed:
      break;
  }
  return TIS_NORMAL;
}

}  // namespace

void PaintPaneGround(HWND window, HDC context, const RECT& part) {
  FillRect(context, &part, GetSysColorBrush(COLOR_BTNFACE));
  RECT all;
  GetClientRect(window, &all);
  Theme(window, L"TAB").Paint(context, TABP_BODY, 0, all);
}

void PaintTab(HWND window, HDC context, const RECT& box, TabLook look) {
  if (Theme(window, L"TAB").Paint(context, TABP_TABITEM, StateOf(look), box)) return;
  RECT edge = box;
  FillRect(context, &edge, GetSysColorBrush(COLOR_BTNFACE));
  DrawEdge(context, &edge, EDGE_RAISED, BF_LEFT | BF_TOP | BF_RIGHT);
}

void PaintPaneFrame(HWND window, HDC context, const RECT& box) {
  if (Theme(window, L"TAB").Paint(context, TABP_PANE, 0, box)) return;
  RECT edge = box;
  FillRect(context, &edge, GetSysColorBrush(COLOR_BTNFACE));
  DrawEdge(context, &edge, EDGE_RAISED, BF_RECT);
}

void PaintFrameLine(HWND window, HDC context, const RECT& box) {
  if (Theme(window, L"BUTTON").Paint(context, BP_GROUPBOX, GBS_NORMAL, box)) return;
  RECT edge = box;
  DrawEdge(context, &edge, EDGE_ETCHED, BF_RECT);
}

}  // namespace orvane
