#include "src/frontend/windows/input/pad.h"

#include <utility>

#include "src/frontend/windows/views/slider_view.h"
#include "src/frontend/windows/windows/windows.h"
#include "src/game/program.h"

namespace orvane {
namespace {

constexpr UINT_PTR kTimer = 1;

WPARAM KeyOf(Direction direction) {
  constexpr WPARAM keys[] = {VK_LEFT, VK_UP, VK_RIGHT, VK_DOWN};
  return keys[static_cast<size_t>(direction)];
}

}  // namespace

Pad::Pad(Events& events, HWND clock, PadSurroundings around)
    : events_(events), clock_(clock), around_(std::move(around)) {}

void Pad::StartLater() const {
  constexpr UINT moment_ms = 500;
  SetTimer(clock_, kTimer, moment_ms, nullptr);
}

void Pad::SetPace(UINT milliseconds) {
  if (std::exchange(pace_, milliseconds) != milliseconds) {
    SetTimer(clock_, kTimer, milliseconds, nullptr);
  }
}

void Pad::Take() {
  if (source_ == nullptr) source_ = OpenPads();
  const int pace = rules_.Read(*source_, IsInFront(), static_cast<double>(GetTickCount64()));
  SetPace(static_cast<UINT>(pace));
}

void Pad::Walk(Direction direction, bool down) {
  SendArrow(events_, direction, down);
}

void Pad::Move(Direction direction) {
  // A slider takes all four arrows for itself; by the cross there must be a way off it.
  const bool sideways = direction == Direction::Left || direction == Direction::Right;
  ScreenWindow* window = around_.InMenu() ? nullptr : around_.InFront();
  if (window != nullptr && !sideways &&
      dynamic_cast<SliderView*>(window->KeysTo().Current()) != nullptr) {
    return window->KeysTo().Move(direction);
  }
  around_.Type(KeyOf(direction));
}

void Pad::OpenMenus() {
  const ScreenWindow* window = around_.InFront();
  if (window == nullptr || !window->HasMenu()) return;
  PostMessageW(window->Handle(), WM_SYSCOMMAND, SC_KEYMENU, 0);
  PostMessageW(window->Handle(), WM_KEYDOWN, VK_DOWN, 0);
}

void Pad::Turn(int step) {
  ScreenWindow* window = around_.InMenu() ? nullptr : around_.InFront();
  if (window == nullptr) return around_.Type(step > 0 ? VK_RIGHT : VK_LEFT);
  if (!window->KeysTo().TurnTab(step, events_)) window->KeysTo().Step(step);
}

}  // namespace orvane
