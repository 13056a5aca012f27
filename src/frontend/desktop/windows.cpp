#include "src/frontend/desktop/windows.h"

namespace orvane {

Windows::Windows(Stage& stage, Events& events) : stage_(stage) {
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

void Windows::ShowNew() {
  for (const auto& window : windows_) {
    if (!window->Model().IsVisible() || window->isVisible()) continue;
    window->Present(Of(active_));
  }
}

void Windows::HideOld() {
  for (const auto& window : windows_) {
    if (!window->Model().IsVisible() && window->isVisible()) window->hide();
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

void Windows::PaintNow() {
  for (const auto& window : windows_) {
    if (window->isVisible()) window->repaint();
  }
}

bool Windows::IsPlayersChoice(const ScreenWindow& window) {
  // A window manager takes some time over a request, and may never grant it.
  constexpr qint64 patience = 700;
  if (expected_ == nullptr || since_asked_.elapsed() > patience) return true;
  if (expected_ == &window) expected_ = nullptr;
  return false;
}

}  // namespace orvane
