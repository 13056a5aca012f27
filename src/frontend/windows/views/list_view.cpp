#include "src/frontend/windows/views/list_view.h"

#include "src/frontend/shared/faces.h"
#include "src/frontend/shared/text_fit.h"
#include "src/frontend/windows/paint/scale.h"
#include "src/frontend/windows/paint/text_paint.h"
#include "src/frontend/windows/windows/window_events.h"
#include "src/game/program.h"
#include "src/platform/windows/wide_text.h"

namespace orvane {

ListView::ListView(Control& model, ListValues& values, const Ground& ground, const Setting& setting)
    : View(model, setting), values_(values) {
  MakeControl(ground, WC_LISTBOXW,
              LBS_NOINTEGRALHEIGHT | LBS_HASSTRINGS | LBS_OWNERDRAWFIXED | WS_VSCROLL,
              WS_EX_CLIENTEDGE);
}

std::wstring ListView::Row(WPARAM row) const {
  const LRESULT length = Ask(LB_GETTEXTLEN, row);
  if (length <= 0) return {};
  std::wstring text(static_cast<size_t>(length) + 1, L'\0');
  Ask(LB_GETTEXT, row, reinterpret_cast<LPARAM>(text.data()));
  text.resize(static_cast<size_t>(length));
  return text;
}

// A text too wide for its row is made narrower.
void ListView::Draw(const DRAWITEMSTRUCT& drawing) {
  constexpr double margin = 3;
  const HDC context = drawing.hDC;
  RECT box = drawing.rcItem;
  const bool is_chosen = (drawing.itemState & ODS_SELECTED) != 0;
  FillRect(context, &box, GetSysColorBrush(is_chosen ? COLOR_HIGHLIGHT : COLOR_WINDOW));
  const int state_colour = is_chosen ? COLOR_HIGHLIGHTTEXT : COLOR_WINDOWTEXT;
  const bool is_off = (drawing.itemState & ODS_DISABLED) != 0;
  if (drawing.itemID != static_cast<UINT>(-1)) {
    const std::wstring text = Row(drawing.itemID);
    const int left = ToScreen(margin, Scale());
    SelectFitting(context, TheSetting().TheFonts, {}, LetterPixels({}, Scale()), text,
                  static_cast<int>(box.right - box.left) - 2 * left);
    SetBkMode(context, TRANSPARENT);
    SetTextColor(context, GetSysColor(is_off ? COLOR_GRAYTEXT : state_colour));
    RECT place = box;
    place.left += left;
    DrawTextW(context, text.c_str(), static_cast<int>(text.size()), &place,
              DT_NOPREFIX | DT_SINGLELINE | DT_VCENTER | DT_NOCLIP);
  }
  if ((drawing.itemState & ODS_FOCUS) == 0) return;
  SetTextColor(context, GetSysColor(COLOR_WINDOWTEXT));
  SetBkColor(context, GetSysColor(COLOR_WINDOW));
  DrawFocusRect(context, &box);
}

bool ListView::Uses(WPARAM key) const {
  return key == VK_UP || key == VK_DOWN;
}

void ListView::Press() {
  Choose(static_cast<int>(Ask(LB_GETCURSEL)));
}

bool ListView::TakeBefore(UINT message, WPARAM w, LPARAM l, LRESULT& result) {
  if (message != WM_LBUTTONUP) return false;
  result = TakeAsControl(message, w, l);
  const LRESULT row = Ask(LB_ITEMFROMPOINT, 0, l);
  const bool is_outside = HIWORD(row) != 0;
  Choose(is_outside ? -1 : LOWORD(row));
  return true;
}

void ListView::Choose(int row) {
  stale_ = true;
  TheSetting().TheEvents.Send([this, row](Program& program) {
    if (row >= 0) program.Choose(Model(), row);
  });
}

void ListView::SetRows() const {
  Ask(WM_SETREDRAW, FALSE);
  Ask(LB_RESETCONTENT);
  for (const std::string& row : values_.Rows) {
    Ask(LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(Wide(Shown(row)).c_str()));
  }
  Ask(WM_SETREDRAW, TRUE);
  InvalidateRect(Handle(), nullptr, TRUE);
}

void ListView::FollowValues(bool all) {
  if (all) {
    SetDefaultFont();
    Ask(LB_SETITEMHEIGHT, 0, ToScreen(OwnLineHeight(PixelSize({})), Scale()));
  }
  const bool rows_changed = all || seen_.Rows != values_.Rows;
  if (rows_changed) SetRows();
  if (rows_changed || stale_ || seen_.ListIndex != values_.ListIndex) {
    Ask(LB_SETCURSEL, static_cast<WPARAM>(values_.ListIndex));
  }
  stale_ = false;
  if (rows_changed) seen_.Rows = values_.Rows;
  seen_.ListIndex = values_.ListIndex;
}

}  // namespace orvane
