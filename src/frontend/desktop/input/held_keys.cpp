#include "src/frontend/desktop/input/held_keys.h"

#include <QKeyEvent>

namespace orvane {

// A repeat comes as a release and a press of the same time, and the toolkit does not always see
// that they belong together.
bool HeldKeys::Repeats(uint32_t code, const QKeyEvent& event) const {
  if (event.isAutoRepeat()) return true;
  if (event.type() == QEvent::KeyRelease) {
    const auto down = ask_();
    return down && (*down)[code];
  }
  const Press& press = presses_[code];
  if (!down_[code] || press.Window == nullptr) return false;
  return !press.LastReleaseTime || event.timestamp() <= *press.LastReleaseTime + 1;
}

HeldKeys::Stroke HeldKeys::Take(const QKeyEvent& event, const QObject& window) {
  const uint32_t code = event.nativeScanCode();
  // What an input method types is no key.
  if (code == 0 || code >= down_.size()) return {event.isAutoRepeat(), false};
  const bool repeats = Repeats(code, event);
  Press& press = presses_[code];
  if (event.type() == QEvent::KeyRelease) {
    press.LastReleaseTime = event.timestamp();
    down_[code] = repeats;
  } else {
    if (!repeats) press = {&window, {}};
    if (repeats && !down_[code]) press = {};
    down_[code] = true;
  }
  return {repeats, press.Window != &window};
}

void HeldKeys::Look() {
  const auto down = ask_();
  if (!down) return;
  for (size_t code = 0; code < down_.size(); ++code) {
    if ((*down)[code] && !down_[code]) presses_[code] = {};
  }
  down_ = *down;
}

}  // namespace orvane
