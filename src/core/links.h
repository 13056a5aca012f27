// What the lower floors ask of those above them. The program ties these when it puts its parts
// together.
#pragma once

#include <functional>

namespace orvane {

struct Links {
  std::function<void(int)>
      SetBattleInterval;             // ms of the battle's action timer; creates the screen
  std::function<void()> ShowBattle;  // shows Battle, hides Main, starts the battle's music timer
  std::function<void()> ShowEnding;
  std::function<void()> SetStoryText;
  std::function<void()> FillSkillTables;
};

}  // namespace orvane
