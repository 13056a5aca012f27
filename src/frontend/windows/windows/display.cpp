#include "src/frontend/windows/windows/display.h"

#include <algorithm>

namespace orvane {
namespace {

Display Ask(HMONITOR monitor) {
  MONITORINFO info{};
  info.cbSize = sizeof info;
  GetMonitorInfoW(monitor, &info);
  return {info.rcMonitor, info.rcWork};
}

Extent SizeOf(const RECT& box) {
  return {double(box.right - box.left), double(box.bottom - box.top)};
}

}  // namespace

Display DisplayAt(HWND window) {
  return Ask(MonitorFromWindow(window, MONITOR_DEFAULTTOPRIMARY));
}

Display DisplayAround(POINT point) {
  return Ask(MonitorFromPoint(point, MONITOR_DEFAULTTONEAREST));
}

ScreenFacts FactsOf(HWND window) {
  const Display display = DisplayAt(window);
  const UINT dpi = window != nullptr ? GetDpiForWindow(window) : GetDpiForSystem();
  RECT frame{};
  AdjustWindowRectExForDpi(&frame, WS_OVERLAPPED | WS_CAPTION, FALSE, 0, dpi);
  const double beyond = std::max(0.0, double(frame.bottom - frame.top) - kTitleHeight);
  ScreenFacts facts{SizeOf(display.Whole), SizeOf(display.Available)};
  facts.Available.Height -= beyond;
  return facts;
}

bool IsSameScreen(const ScreenFacts& one, const ScreenFacts& other) {
  const auto same = [](const Extent& a, const Extent& b) {
    return a.Width == b.Width && a.Height == b.Height;
  };
  return same(one.Whole, other.Whole) && same(one.Available, other.Available);
}

}  // namespace orvane
