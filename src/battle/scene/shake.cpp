#include "src/battle/scene/shake.h"

#include "src/battle/battle_screen.h"

namespace orvane {
namespace {

double Pixels(int frame, int twips) {
  return SignOf(frame / 2) * twips / TwipsPerPixel;
}

}  // namespace

void ShakeUpDown(BattleScreen& battle, int frame, int twips) {
  battle.Scene.At.Top += Pixels(frame, twips);
}

void ShakeLeftRight(BattleScreen& battle, int frame, int twips) {
  battle.Scene.At.Left += Pixels(frame, twips);
}

}  // namespace orvane
