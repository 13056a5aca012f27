// Shaking the scene on its screen.
#pragma once

namespace orvane {

class BattleScreen;

// Moves the scene by so many twips, the other way on every frame, so that an even number of frames
// ends where it began.
void ShakeUpDown(BattleScreen& battle, int frame, int twips);
void ShakeLeftRight(BattleScreen& battle, int frame, int twips);

// (-1) to the power n.
constexpr int SignOf(int n) {
  return n % 2 == 0 ? 1 : -1;
}

}  // namespace orvane
