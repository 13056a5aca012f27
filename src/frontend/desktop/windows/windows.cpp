#include "src/frontend/desktop/windows/windows.h"

#include <QGuiApplication>
#include <QWindow>
#include <algorithm>

#include "src/frontend/desktop/windows/toolkit_scale.h"

namespace orvane {

Windows::Windows(Stage& stage, WindowEvents& events, const Zoom& zoom)
    : stage_(stage), scale_(zoom.ScaleFor({})) {
  for (Screen* screen : stage.Screens()) {
    windows_.push_back(std::make_unique<ScreenWindow>(*screen, events));
  }
}

ScreenWindow* Windows::Of(const Screen* screen) const {
  for (const auto& window : windows_) {
    if (&window->Model() == screen) return window.get();
  }
  return nullptr;
}

const ScreenWindow* Windows::Scene() const {
  const auto found = std::find_if(windows_.begin(), windows_.end(), [](const auto& window) {
    return window->Model().IsScene && window->isVisible();
  });
  return found == windows_.end() ? nullptr : found->get();
}

ScreenWindow* Windows::Active() const {
  return Of(stage_.Active());
}

void Windows::Follow() {
  for (const auto& window : windows_) {
    if (window->isVisible() && window->Model().IsVisible()) window->Follow();
  }
  // New windows come before old ones go, so that the keyboard never falls to another program.
  ShowNew();
  HideOld();
  if (stage_.Active() != active_) RaiseActive();
  active_ = stage_.Active();
}

void Windows::Retranslate() {
  for (const auto& window : windows_) window->Retranslate();
}

void Windows::Rescale(const Zoom& zoom) {
  full_screen_ = zoom.IsFullScreen();
  FollowBackdrop();
  std::vector<ScreenWindow*> down;
  for (const auto& window : windows_) {
    if (window->isVisible()) down.push_back(window.get());
    window->TakeDown();
  }
  scale_ = zoom.ScaleFor(TakenSpans(full_screen_));
  SetScale(scale_, zoom.TheScreen());
  for (ScreenWindow* window : down) window->PutBack(TheSetting());
  active_ = nullptr;
  Follow();
}

bool Windows::IsGiven() const {
  return std::any_of(windows_.begin(), windows_.end(),
                     [](const auto& window) { return window->Given().has_value(); });
}

void Windows::ShareGiven(const Screen& screen) {
  const auto given = Of(&screen)->Given();
  for (const auto& window : windows_) {
    if (window->Model().IsScene) window->SetGiven(given);
  }
}

void Windows::ForgetGiven() {
  for (const auto& window : windows_) window->SetGiven({});
}

Setting Windows::TheSetting() const {
  return {full_screen_, backdrop_ == nullptr ? nullptr : backdrop_->windowHandle()};
}

// Whatever the windows do on the full screen, the desktop does not flash up behind them. A window
// manager that places all windows itself may have no more than one on the full screen, and
// Wayland's compositors may keep the one that came first in front.
void Windows::FollowBackdrop() {
  const bool is_wayland = QGuiApplication::platformName().startsWith("wayland");
  const bool is_wanted = full_screen_ && !IsGiven() && !is_wayland;
  if (is_wanted == (backdrop_ != nullptr)) return;
  if (!is_wanted) return backdrop_.reset();
  backdrop_ = std::make_unique<QWidget>();
  backdrop_->setWindowTitle(QCoreApplication::applicationName());
  backdrop_->setPalette(QPalette(Qt::black));
  backdrop_->setAttribute(Qt::WA_ShowWithoutActivating);
  backdrop_->showFullScreen();
}

bool Windows::Suit(const Zoom& zoom) const {
  return full_screen_ == zoom.IsFullScreen() &&
         scale_ == zoom.ScaleFor(TakenSpans(zoom.IsFullScreen()));
}

std::vector<Span> Windows::TakenSpans(bool full_screen) const {
  std::vector<Span> spans;
  for (const auto& window : windows_) {
    if (window->Model().IsVisible()) spans.push_back(window->TakenSpan(full_screen));
  }
  return spans;
}

void Windows::ShowNew() {
  for (const auto& window : windows_) {
    if (!window->Model().IsVisible() || window->isVisible()) continue;
    window->Present(Of(active_), TheSetting());
  }
}

void Windows::HideOld() {
  for (const auto& window : windows_) {
    if (!window->Model().IsVisible() && window->isVisible()) window->Dismiss();
  }
}

void Windows::RaiseActive() {
  ScreenWindow* window = Active();
  if (window == nullptr) return;
  expected_ = window->isActiveWindow() ? nullptr : window;
  since_asked_.start();
  window->raise();
  window->activateWindow();
}

bool Windows::IsPlayersChoice(const ScreenWindow& window) {
  // A window manager takes some time over a request, and may never grant it.
  constexpr qint64 patience = 700;
  if (expected_ == nullptr || since_asked_.elapsed() > patience) return true;
  if (expected_ == &window) expected_ = nullptr;
  return false;
}

}  // namespace orvane
