#include "src/frontend/windows/windows/screen_window.h"

#include <algorithm>
#include <map>
#include <utility>

#include "src/frontend/windows/paint/scale.h"
#include "src/frontend/windows/views/view_factory.h"
#include "src/frontend/windows/windows/display.h"
#include "src/frontend/windows/windows/language_menu.h"
#include "src/frontend/windows/windows/window_events.h"
#include "src/game/program.h"
#include "src/platform/windows/wide_text.h"

namespace orvane {
namespace {

constexpr UINT kKeepOrder = SWP_NOZORDER | SWP_NOACTIVATE;

POINT MiddleOf(const RECT& box) {
  return {(box.left + box.right) / 2, (box.top + box.bottom) / 2};
}

POINT MiddleOf(HWND window) {
  RECT box;
  GetWindowRect(window, &box);
  return MiddleOf(box);
}

}  // namespace

ScreenWindow::ScreenWindow(Screen& screen, const Setting& setting)
    : screen_(screen),
      setting_(setting),
      menu_(screen, setting.TheEvents),
      title_(setting.TheEvents.Texts().Of(screen.Caption)) {
  const std::wstring title = Wide(title_);
  Make({.Text = title.c_str(), .Style = Style()});
  if (HasMenu()) SetMenu(Handle(), menu_.Bar());
  AddLanguages(GetSystemMenu(Handle(), FALSE), setting.TheEvents.Texts());
  client_ = std::make_unique<ClientArea>(screen, Handle(), setting);
  MakeViews();
  // What has the keyboard shows it from the start, not only once a key has been used.
  SendMessageW(Handle(), WM_CHANGEUISTATE, MAKEWPARAM(UIS_CLEAR, UISF_HIDEFOCUS), 0);
}

void ScreenWindow::MakeViews() {
  std::map<const Control*, View*> made;
  for (Control* control : screen_.Controls()) {
    const auto holder = made.find(control->Parent());
    Ground* ground =
        holder == made.end() ? client_.get() : holder->second->GroundOf(control->Pane());
    if (ground == nullptr) continue;
    auto view = MakeView(*control, *ground, setting_);
    if (view == nullptr) continue;
    made[control] = view.get();
    views_.push_back(std::move(view));
  }
  // Later controls lie in front of earlier ones, and texts behind everything beside them.
  for (const auto& view : views_) {
    if (view->Model().Kind() == ControlKind::Label) continue;
    SetWindowPos(view->Handle(), HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
  }
  keys_to_ = std::make_unique<Focus>(Handle(), screen_, views_);
}

DWORD ScreenWindow::Style() const {
  const DWORD clip = WS_CLIPCHILDREN;
  if (covers_) return WS_POPUP | clip;
  const DWORD largest = screen_.IsScene ? WS_MAXIMIZEBOX : 0;
  return WS_OVERLAPPED | WS_CAPTION | WS_SYSMENU | WS_MINIMIZEBOX | largest | clip;
}

void ScreenWindow::FollowTitle() {
  std::string title = setting_.TheEvents.Texts().Of(screen_.Caption);
  if (title_ == title) return;
  title_ = std::move(title);
  SetWindowTextW(Handle(), Wide(title_).c_str());
}

void ScreenWindow::Follow() {
  // A control that is switched off loses the keyboard, and then nobody can tell which had it.
  keys_to_->Look();
  FollowTitle();
  menu_.Follow(Handle());
  client_->Follow(false);
  for (const auto& view : views_) view->Follow();
  keys_to_->Follow();
}

void ScreenWindow::FollowAll() {
  FollowTitle();
  menu_.Follow(Handle());
  client_->Follow(true);
  for (const auto& view : views_) view->FollowAll();
}

void ScreenWindow::Retranslate() {
  MarkLanguage(GetSystemMenu(Handle(), FALSE), setting_.TheEvents.Texts());
  client_->NameForReaders();
  for (const auto& view : views_) NameForReaders(*view, setting_);
  keys_to_->Look();
  FollowAll();
  keys_to_->Follow();
}

void ScreenWindow::OfferLanguages(POINT at) const {
  WindowEvents& events = setting_.TheEvents;
  const std::string code = AskLanguage(Handle(), at, events.Texts());
  if (!code.empty()) events.ChooseLanguage(code);
}

void ScreenWindow::Present(const ScreenWindow* over, HWND backdrop, bool active) {
  // The screen may have been loaded afresh since it was seen last.
  FollowAll();
  up_ = true;
  const bool has_owner = over != nullptr && over->screen_.IsVisible() && !screen_.IsScene;
  const HWND owner = has_owner ? over->Handle() : backdrop;
  SetWindowLongPtrW(Handle(), GWLP_HWNDPARENT, reinterpret_cast<LONG_PTR>(owner));
  if (covers_) {
    CoverDisplay();
  } else if (!placed_) {
    Centre(over != nullptr ? MiddleOf(over->Handle()) : MiddleOf(DisplayAt(nullptr).Available));
    placed_ = true;
  }
  ShowWindow(Handle(), active ? SW_SHOW : SW_SHOWNA);
  keys_to_->Begin();
}

void ScreenWindow::Dismiss() {
  up_ = false;
  ShowWindow(Handle(), SW_HIDE);
}

SIZE ScreenWindow::InsideSize() const {
  return {ToScreen(screen_.Width, setting_.Scale), ToScreen(screen_.Height, setting_.Scale)};
}

SIZE ScreenWindow::WholeSize() const {
  const SIZE inside = InsideSize();
  RECT box = {0, 0, inside.cx, inside.cy};
  AdjustWindowRectExForDpi(&box, Style(), HasMenu() ? TRUE : FALSE, 0, GetDpiForWindow(Handle()));
  return {box.right - box.left, box.bottom - box.top};
}

void ScreenWindow::LayOut(bool full_screen) {
  const POINT middle = MiddleOf(Handle());
  const bool covered = covers_;
  covers_ = full_screen && screen_.IsScene;
  if (covers_ != covered) {
    const LONG_PTR visible = GetWindowLongPtrW(Handle(), GWL_STYLE) & WS_VISIBLE;
    SetWindowLongPtrW(Handle(), GWL_STYLE, static_cast<LONG_PTR>(Style()) | visible);
    SetWindowPos(Handle(), nullptr, 0, 0, 0, 0,
                 kKeepOrder | SWP_NOMOVE | SWP_NOSIZE | SWP_FRAMECHANGED);
  }
  if (covers_) {
    CoverDisplay();
  } else {
    Centre(middle);
  }
  PlaceClient();
  FollowAll();
}

void ScreenWindow::CoverDisplay() const {
  const RECT& box = DisplayAt(Handle()).Whole;
  SetWindowPos(Handle(), nullptr, box.left, box.top, box.right - box.left, box.bottom - box.top,
               kKeepOrder);
}

void ScreenWindow::Centre(POINT middle) const {
  SIZE size = WholeSize();
  const RECT available = DisplayAround(middle).Available;
  const auto place = [&] {
    const LONG left = std::min(middle.x - size.cx / 2, available.right - size.cx);
    const LONG top = std::min(middle.y - size.cy / 2, available.bottom - size.cy);
    SetWindowPos(Handle(), nullptr, std::max(available.left, left), std::max(available.top, top),
                 size.cx, size.cy, kKeepOrder);
  };
  place();
  // A menu bar in more than one line takes from the inside.
  RECT inside;
  GetClientRect(Handle(), &inside);
  const LONG lacks = InsideSize().cy - inside.bottom;
  if (lacks == 0) return;
  size.cy += lacks;
  place();
}

// In the middle of the window, which is larger where it covers the display.
void ScreenWindow::PlaceClient() {
  RECT inside;
  GetClientRect(Handle(), &inside);
  const SIZE size = InsideSize();
  SetWindowPos(client_->Handle(), nullptr, (inside.right - size.cx) / 2,
               (inside.bottom - size.cy) / 2, size.cx, size.cy, kKeepOrder | SWP_NOCOPYBITS);
  InvalidateRect(Handle(), nullptr, TRUE);
}

Span ScreenWindow::TakenSpan(bool full_screen) const {
  const bool covers = full_screen && screen_.IsScene;
  const UINT dpi = GetDpiForWindow(Handle());
  RECT frame{};
  AdjustWindowRectExForDpi(&frame, covers ? WS_POPUP : WS_OVERLAPPED | WS_CAPTION,
                           HasMenu() ? TRUE : FALSE, 0, dpi);
  return {{double(screen_.Width), double(screen_.Height)}, double(frame.bottom - frame.top)};
}

bool ScreenWindow::PaintNow() const {
  const HRGN stale = CreateRectRgn(0, 0, 0, 0);
  bool is_stale = GetUpdateRgn(Handle(), stale, FALSE) > NULLREGION;
  const auto add = [&](HWND window) {
    is_stale = is_stale || GetUpdateRgn(window, stale, FALSE) > NULLREGION;
  };
  add(client_->Handle());
  for (const auto& view : views_) {
    if (view->Model().Visible) add(view->Handle());
  }
  DeleteObject(stale);
  if (is_stale) {
    RedrawWindow(Handle(), nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    GdiFlush();
  }
  return is_stale;
}

LRESULT ScreenWindow::Take(UINT message, WPARAM w, LPARAM l) {
  WindowEvents& events = setting_.TheEvents;
  switch (message) {
    case WM_ERASEBKGND: {
      RECT all;
      GetClientRect(Handle(), &all);
      FillRect(reinterpret_cast<HDC>(w), &all, static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH)));
      return 1;
    }
    case WM_COMMAND:
      if (l == 0) menu_.Chosen(LOWORD(w));
      return 0;
    case WM_INITMENUPOPUP:
      if (HIWORD(l) == 0) menu_.Opened(reinterpret_cast<HMENU>(w));
      return 0;
    case WM_ENTERMENULOOP:
    case WM_ENTERSIZEMOVE:
      events.SystemLoops(true);
      return 0;
    case WM_EXITMENULOOP:
    case WM_EXITSIZEMOVE:
      events.SystemLoops(false);
      return 0;
    case WM_SYSCOMMAND:
      // The control for the largest size means the full screen.
      if ((w & 0xFFF0) == SC_MAXIMIZE) {
        events.WantsFullScreen();
        return 0;
      }
      if (const std::string code = LanguageOf(w, events.Texts()); !code.empty()) {
        events.ChooseLanguage(code);
        return 0;
      }
      break;
    case WM_CONTEXTMENU: {
      // Without a place where it comes from a key.
      const bool is_key = l == -1;
      const POINT at = {GET_X_LPARAM(l), GET_Y_LPARAM(l)};
      RECT inside;
      GetWindowRect(client_->Handle(), &inside);
      // On the title the system opens a menu of its own.
      if (!is_key && PtInRect(&inside, at) == FALSE) break;
      // A press on a film of the screen's own means something else.
      if (!is_key && screen_.OwnSurface != nullptr) return 0;
      OfferLanguages(is_key ? MiddleOf(inside) : at);
      return 0;
    }
    case WM_ACTIVATE:
      if (LOWORD(w) == WA_INACTIVE) break;
      events.Activated(screen_);
      keys_to_->Restore();
      return 0;
    case WM_ACTIVATEAPP:
      events.ProgramActivated(w != FALSE);
      break;
    case WM_SETFOCUS:
      keys_to_->Restore();
      return 0;
    case WM_CLOSE:
      // The game decides whether the window goes.
      events.Send([this](Program& program) { program.Close(screen_); });
      return 0;
    case WM_DPICHANGED:
      events.DotsChanged();
      return 0;
    case WM_DISPLAYCHANGE:
    case WM_SETTINGCHANGE:
      events.DisplayChanged();
      return 0;
    case WM_QUERYENDSESSION:
      return TRUE;
    case WM_ENDSESSION:
      if (w != FALSE) events.SessionEnds();
      return 0;
    default:
      break;
  }
  return OwnWindow::Take(message, w, l);
}

}  // namespace orvane
