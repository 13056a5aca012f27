// What the lower floors ask of those above them. The program ties these when it puts its parts
// together.
#pragma once

#include <functional>

namespace orvane {

struct Links {
  // Sets the period of the battle's action timer in ms; creates the screen.
  std::function<void(int)> SetBattleInterval;
  // Shows Battle, hides Main, starts the battle's music timer.
  std::function<void()> ShowBattle;
  std::function<void()> ShowEnding;
  std::function<void()> SetStoryText;
  std::function<void()> FillSkillTables;
};

}  // namespace orvane
