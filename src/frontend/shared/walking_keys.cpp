#include "src/frontend/shared/walking_keys.h"

#include <algorithm>
#include <utility>

namespace orvane {

WalkingKeys::WalkingKeys(Surroundings around)
    : around_(std::move(around)), held_(around_.AskKeyboard) {}

bool WalkingKeys::Take(const KeyEvent& event, const KeyMeaning& meaning) {
  const HeldKeys::Stroke stroke = held_.Take(event);
  if (stroke.Repeats) {
    if (stroke.IsStray) return true;
    // What was pressed to walk must not move anything in a menu.
    if (meaning.Arrow) {
      return keys_[static_cast<size_t>(*meaning.Arrow)].Held && !around_.Reaches();
    }
    return meaning.ActsAtOnce && !meaning.Types;
  }
  if (!meaning.Arrow) return false;
  KeyState& state = keys_[static_cast<size_t>(*meaning.Arrow)];
  state.Code = event.Code;
  if (event.IsPress) {
    Walk(state, *meaning.Arrow);
  } else {
    Halt(state, *meaning.Arrow);
  }
  return false;
}

void WalkingKeys::Walk(KeyState& state, Direction key) {
  if (!around_.Reaches() || around_.MenuBarHasKeys()) return;
  state.Held = true;
  around_.Send(key, true);
}

void WalkingKeys::Halt(KeyState& state, Direction key) {
  if (!around_.Reaches()) return;
  state.Held = false;
  around_.Send(key, false);
}

bool WalkingKeys::IsOutstanding() const {
  return std::any_of(keys_.begin(), keys_.end(), [](const KeyState& state) { return state.Held; });
}

void WalkingKeys::Settle() {
  held_.Look();
  for (size_t i = 0; i < keys_.size(); ++i) {
    if (keys_[i].Held && !held_.IsDown(keys_[i].Code)) Halt(keys_[i], static_cast<Direction>(i));
  }
}

void WalkingKeys::Follow() {
  const bool reached = std::exchange(reached_, around_.Reaches());
  if (reached_ && !reached) Settle();
}

}  // namespace orvane
