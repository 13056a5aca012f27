#include "src/frontend/shared/pad_rules.h"

#include <utility>

namespace orvane {
namespace {

constexpr double kFirstRepeatMs = 400;
constexpr double kNextRepeatMs = 120;

}  // namespace

void PadRules::Follow(const PadState& state, double now) {
  const PadState before = std::exchange(seen_, state);
  LetGo(state);
  for (size_t i = 0; i < kPadButtons; ++i) {
    if (!state[i]) continue;
    const bool fresh = !before[i];
    const bool is_direction = i < walking_.size();
    const bool again = is_direction && !fresh && !walking_[i] &&
                       now - pressed_ > (repeats_ ? kNextRepeatMs : kFirstRepeatMs);
    if (!fresh && !again) continue;
    if (is_direction) {
      pressed_ = now;
      repeats_ = again;
    }
    Press(static_cast<PadButton>(i));
  }
}

int PadRules::Read(PadSource& source, bool in_front, double now) {
  constexpr int often_ms = 10;
  const auto state = source.Read();
  const bool ours = state && in_front;
  Follow(ours ? *state : PadState{}, now);
  return ours ? often_ms : kPadSeldomMs;
}

void PadRules::LetGo(const PadState& state) {
  // A release outside the game's window is handed in when keys reach it again.
  if (!hands_.ReachesWindow()) return;
  for (size_t i = 0; i < walking_.size(); ++i) {
    if (state[i] || !walking_[i]) continue;
    walking_[i] = false;
    hands_.Walk(static_cast<Direction>(i), false);
  }
}

void PadRules::Press(PadButton button) {
  const auto index = static_cast<size_t>(button);
  if (index < walking_.size()) {
    const Direction direction = static_cast<Direction>(index);
    if (!hands_.ReachesGame()) return hands_.Move(direction);
    // What was pressed in another window does not start a walk; what walks goes on walking.
    if (std::exchange(walking_[index], true)) return;
    return hands_.Walk(direction, true);
  }
  switch (button) {
    case PadButton::Accept:
      return hands_.Accept();
    case PadButton::Back:
      return hands_.Back();
    case PadButton::Menu:
      return hands_.OpenMenus();
    case PadButton::Previous:
      return hands_.Turn(-1);
    default:
      return hands_.Turn(1);
  }
}

}  // namespace orvane
