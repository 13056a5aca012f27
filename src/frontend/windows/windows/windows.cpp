#include "src/frontend/windows/windows/windows.h"

#include "src/frontend/windows/windows/display.h"

namespace orvane {
namespace {

// Covers the display behind all windows, so that the desktop does not flash up whatever they do on
// the full screen.
class Backdrop : public OwnWindow {
 public:
  explicit Backdrop(HWND beside) {
    Make({.Text = L"Orvane",
          .Style = WS_POPUP | WS_VISIBLE | WS_DISABLED,
          .Extended = WS_EX_NOACTIVATE | WS_EX_TOOLWINDOW,
          .Box = DisplayAt(beside).Whole});
  }

 protected:
  LRESULT Take(UINT message, WPARAM w, LPARAM l) override {
    if (message != WM_ERASEBKGND) return OwnWindow::Take(message, w, l);
    RECT all;
    GetClientRect(Handle(), &all);
    FillRect(reinterpret_cast<HDC>(w), &all, static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH)));
    return 1;
  }
};

}  // namespace

Windows::Windows(Stage& stage, Setting& setting) : stage_(stage), setting_(setting) {
  for (Screen* screen : stage.Screens()) {
    windows_.push_back(std::make_unique<ScreenWindow>(*screen, setting));
  }
}

ScreenWindow* Windows::Of(const Screen* screen) const {
  for (const auto& window : windows_) {
    if (&window->Model() == screen) return window.get();
  }
  return nullptr;
}

ScreenWindow* Windows::Around(HWND window) const {
  const HWND root = window == nullptr ? nullptr : GetAncestor(window, GA_ROOT);
  for (const auto& each : windows_) {
    if (each->Handle() == root) return each.get();
  }
  return nullptr;
}

ScreenWindow* Windows::Active() const {
  return Of(stage_.Active());
}

void Windows::Follow(const Zoom& zoom) {
  Suit(zoom);
  for (const auto& window : windows_) {
    if (window->IsUp() && window->Model().IsVisible()) window->Follow();
  }
  // New windows come before old ones go, and take input before others stop to, so that the keyboard
  // never falls to another program.
  const bool in_front = active_ == nullptr || IsInFront();
  const HWND cover = backdrop_ == nullptr ? nullptr : backdrop_->Handle();
  for (const auto& window : windows_) {
    if (!window->Model().IsVisible() || window->IsUp()) continue;
    const bool is_active = &window->Model() == stage_.Active() && !stage_.BoxStands();
    window->Present(Of(active_), cover, in_front && is_active);
  }
  FollowInput();
  if (stage_.Active() != active_) RaiseActive();
  for (const auto& window : windows_) {
    if (!window->Model().IsVisible() && window->IsUp()) window->Dismiss();
  }
  active_ = stage_.Active();
}

void Windows::Retranslate() const {
  for (const auto& window : windows_) window->Retranslate();
}

void Windows::FollowInput() {
  const auto is_open = [this](const Screen& screen) {
    if (stage_.BoxStands()) return false;
    for (const Screen* other : stage_.Screens()) {
      if (other != &screen && other->IsVisible() && other->IsModal()) return false;
    }
    return true;
  };
  for (const bool open : {true, false}) {
    for (const auto& window : windows_) {
      if (!window->IsUp() || is_open(window->Model()) != open) continue;
      if ((IsWindowEnabled(window->Handle()) != FALSE) != open) {
        EnableWindow(window->Handle(), open ? TRUE : FALSE);
      }
    }
  }
}

void Windows::RaiseActive() const {
  const ScreenWindow* window = Active();
  if (window == nullptr || stage_.BoxStands()) return;
  if (IsInFront() || active_ == nullptr) {
    SetForegroundWindow(window->Handle());
  } else {
    SetWindowPos(window->Handle(), HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
  }
}

void Windows::Suit(const Zoom& zoom) {
  const bool full_screen = zoom.IsFullScreen();
  const double scale = zoom.ScaleFor(TakenSpans(full_screen));
  if (laid_out_ && scale == setting_.Scale && full_screen == full_screen_) return;
  laid_out_ = true;
  setting_.Scale = scale;
  full_screen_ = full_screen;
  FollowBackdrop();
  for (const auto& window : windows_) window->LayOut(full_screen_);
}

void Windows::FollowBackdrop() {
  if (full_screen_ == (backdrop_ != nullptr)) return;
  const ScreenWindow* active = Active();
  if (full_screen_) {
    backdrop_ = std::make_unique<Backdrop>(active == nullptr ? nullptr : active->Handle());
  }
  // With its owner a window would go too.
  const HWND cover = backdrop_->Handle();
  for (const auto& window : windows_) {
    const HWND owner = GetWindow(window->Handle(), GW_OWNER);
    if (owner != (full_screen_ ? nullptr : cover)) continue;
    SetWindowLongPtrW(window->Handle(), GWLP_HWNDPARENT,
                      reinterpret_cast<LONG_PTR>(full_screen_ ? cover : nullptr));
  }
  if (!full_screen_) backdrop_.reset();
  if (active != nullptr) SetForegroundWindow(active->Handle());
}

std::vector<Span> Windows::TakenSpans(bool full_screen) const {
  std::vector<Span> spans;
  for (const auto& window : windows_) {
    if (window->Model().IsVisible()) spans.push_back(window->TakenSpan(full_screen));
  }
  return spans;
}

std::vector<const Screen*> Windows::PaintNow() const {
  std::vector<const Screen*> painted;
  for (const auto& window : windows_) {
    if (window->IsUp() && window->PaintNow()) painted.push_back(&window->Model());
  }
  return painted;
}

bool IsInFront() {
  DWORD process = 0;
  GetWindowThreadProcessId(GetForegroundWindow(), &process);
  return process == GetCurrentProcessId();
}

}  // namespace orvane
