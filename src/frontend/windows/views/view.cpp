#include "src/frontend/windows/views/view.h"

#include "src/frontend/windows/paint/scale.h"
#include "src/frontend/windows/paint/text_paint.h"
#include "src/frontend/windows/windows/ground.h"
#include "src/frontend/windows/windows/window_events.h"

namespace orvane {
namespace {

constexpr UINT_PTR kSubclass = 1;
constexpr const wchar_t* kProperty = L"OrvaneView";

bool Same(const Place& one, const Place& other) {
  return one.Left == other.Left && one.Top == other.Top && one.Width == other.Width &&
         one.Height == other.Height;
}

}  // namespace

View::~View() {
  if (!is_control_) return;
  RemovePropW(handle_, kProperty);
  RemoveWindowSubclass(handle_, &View::Receive, kSubclass);
  DestroyWindow(handle_);
}

View* View::Of(HWND window) {
  return window == nullptr ? nullptr : static_cast<View*>(GetPropW(window, kProperty));
}

void View::MakeControl(const Ground& ground, const wchar_t* kind, DWORD style, DWORD extended) {
  handle_ = CreateWindowExW(extended, kind, L"", style | WS_CHILD | WS_CLIPSIBLINGS, 0, 0, 0, 0,
                            ground.Handle(), nullptr, GetModuleHandleW(nullptr), nullptr);
  is_control_ = true;
  SetPropW(handle_, kProperty, this);
  SetWindowSubclass(handle_, &View::Receive, kSubclass, reinterpret_cast<DWORD_PTR>(this));
}

void View::Adopt(HWND window) {
  handle_ = window;
  SetPropW(handle_, kProperty, this);
}

bool View::TakeBefore(UINT /*message*/, WPARAM /*w*/, LPARAM /*l*/, LRESULT& /*result*/) {
  return false;
}

LRESULT View::TakeAsControl(UINT message, WPARAM w, LPARAM l) const {
  return DefSubclassProc(handle_, message, w, l);
}

LRESULT CALLBACK View::Receive(HWND window, UINT message, WPARAM w, LPARAM l, UINT_PTR /*id*/,
                               DWORD_PTR self) {
  LRESULT result = 0;
  if (reinterpret_cast<View*>(self)->TakeBefore(message, w, l, result)) return result;
  return DefSubclassProc(window, message, w, l);
}

void View::Follow() {
  FollowCommon(false);
  FollowValues(false);
}

void View::FollowAll() {
  FollowCommon(true);
  FollowValues(true);
}

RECT View::BoxNow() const {
  Place place = model_.At;
  if (const Control* holder = model_.Parent()) {
    place.Left += holder->Border();
    place.Top += holder->Border();
  }
  return ToScreen(place, Scale());
}

void View::FollowCommon(bool all) {
  if (all || !Same(seen_.At, model_.At)) {
    const RECT box = BoxNow();
    SetWindowPos(handle_, nullptr, box.left, box.top, box.right - box.left, box.bottom - box.top,
                 SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOCOPYBITS);
  }
  if (all || seen_.Enabled != model_.Enabled) EnableWindow(handle_, model_.Enabled ? TRUE : FALSE);
  if (all || seen_.Visible != model_.Visible) {
    ShowWindow(handle_, model_.Visible ? SW_SHOWNA : SW_HIDE);
  }
  seen_ = model_;
}

void View::SetDefaultFont() const {
  const HFONT font = setting_.TheFonts.Get({}, LetterPixels({}, Scale()));
  Ask(WM_SETFONT, reinterpret_cast<WPARAM>(font), TRUE);
}

std::string View::Shown(std::string_view text) const {
  return setting_.TheEvents.Texts().Of(model_, text);
}

RECT View::Inside() const {
  RECT inside;
  GetClientRect(handle_, &inside);
  return inside;
}

}  // namespace orvane
