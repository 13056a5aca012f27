#include "src/frontend/shared/held_keys.h"

namespace orvane {

// A repeat may come as a release and a press of the same time, and toolkits do not always see that
// they belong together.
bool HeldKeys::Repeats(const KeyEvent& event) const {
  if (event.SaysRepeat) return true;
  if (!event.IsPress) {
    const auto down = ask_();
    return down && (*down)[event.Code];
  }
  const Press& press = presses_[event.Code];
  if (!down_[event.Code] || press.Window == nullptr) return false;
  return !press.LastReleaseTime || event.Time <= *press.LastReleaseTime + 1;
}

HeldKeys::Stroke HeldKeys::Take(const KeyEvent& event) {
  // What an input method types is no key.
  if (event.Code == 0 || event.Code >= down_.size()) return {event.SaysRepeat, false};
  const bool repeats = Repeats(event);
  Press& press = presses_[event.Code];
  if (!event.IsPress) {
    press.LastReleaseTime = event.Time;
    down_[event.Code] = repeats;
  } else {
    if (!repeats) press = {event.Window, {}};
    if (repeats && !down_[event.Code]) press = {};
    down_[event.Code] = true;
  }
  return {repeats, press.Window != event.Window};
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
