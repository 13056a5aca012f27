// What the lower floors ask of those above them. The program ties these when it puts its parts
// together.
#pragma once

#include <functional>

namespace orvane {

struct Links {
  // What Main does when it comes into being.
  std::function<void()> StartUp;
  // Sets the interval of the battle's action timer, in milliseconds; creates the screen.
  std::function<void(int)> SetBattleInterval;
  // Shows Battle, hides Main and starts the battle's music timer.
  std::function<void()> ShowBattle;
  std::function<void()> ShowEnding;
};

}  // namespace orvane
