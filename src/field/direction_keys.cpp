#include "src/field/direction_keys.h"

#include <array>

#include "src/core/shared_state.h"

namespace orvane {
namespace {

// One direction's number, its two flags and its row of the hero sheet.
struct Slot {
  int Number;
  Int16& Driving;
  Int16& Waiting;
  int SpriteY;
};

std::array<Slot, 4> Slots(SharedState& state) {
  return {{{1, state.KeyUp, state.KeyUpWaiting, 0},
           {2, state.KeyDown, state.KeyDownWaiting, 64},
           {3, state.KeyLeft, state.KeyLeftWaiting, 96},
           {4, state.KeyRight, state.KeyRightWaiting, 32}}};
}

// The number by which LastKey and the slots know a direction.
int NumberOf(Direction direction) {
  switch (direction) {
    case Direction::Up:
      return 1;
    case Direction::Down:
      return 2;
    case Direction::Left:
      return 3;
    case Direction::Right:
      break;
  }
  return 4;
}

// The first waiting direction in the order up, down, left, right but for those two, or 0.
int FirstWaiting(std::array<Slot, 4>& slots, int but, int nor_this) {
  for (const Slot& slot : slots) {
    if (slot.Number != but && slot.Number != nor_this && slot.Waiting != kFalse) return slot.Number;
  }
  return 0;
}

bool NoneDrives(const std::array<Slot, 4>& slots) {
  for (const Slot& slot : slots) {
    if (slot.Driving != kFalse) return false;
  }
  return true;
}

}  // namespace

void DirectionDown(SharedState& state, Direction direction) {
  const int number = NumberOf(direction);
  std::array<Slot, 4> slots = Slots(state);
  for (Slot& other : slots) {
    if (other.Number == number || other.Driving == kFalse) continue;
    other.Driving = kFalse;
    state.LastKey = other.Number;
    other.Waiting = kTrue;
    break;
  }
  Slot& pressed = slots[static_cast<size_t>(number - 1)];
  pressed.Driving = kTrue;
  pressed.Waiting = kFalse;
  state.HeroSpriteY = pressed.SpriteY;
}

void DirectionUp(SharedState& state, Direction direction) {
  const int number = NumberOf(direction);
  std::array<Slot, 4> slots = Slots(state);
  Slot& released = slots[static_cast<size_t>(number - 1)];
  if (released.Driving == kFalse) {
    released.Waiting = kFalse;
    if (state.LastKey == number) state.LastKey = FirstWaiting(slots, number, number);
    return;
  }
  released.Driving = kFalse;
  const int last = state.LastKey;
  if (last >= 1 && last <= 4 && last != number) {
    Slot& next = slots[static_cast<size_t>(last - 1)];
    next.Driving = kTrue;
    next.Waiting = kFalse;
    state.HeroSpriteY = next.SpriteY;
    const int waiting = FirstWaiting(slots, number, last);
    if (waiting != 0) state.LastKey = waiting;
  }
  if (NoneDrives(slots)) state.LastKey = 0;
}

std::optional<Direction> DrivingDirection(const SharedState& state) {
  if (state.KeyUp != kFalse) return Direction::Up;
  if (state.KeyDown != kFalse) return Direction::Down;
  if (state.KeyLeft != kFalse) return Direction::Left;
  if (state.KeyRight != kFalse) return Direction::Right;
  return std::nullopt;
}

}  // namespace orvane
