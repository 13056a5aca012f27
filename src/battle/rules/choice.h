// What an action is about, as plain numbers.
#pragma once

namespace orvane {

// Whom a skill is for.
enum class Targets { One, All, Heroes };

// The party's two.
constexpr int kMan = 0;
constexpr int kWoman = 1;

// What the player has chosen for the action that runs. A list without a selection counts as row -1,
// and rules throw RunError(Subscript) where that leads outside a table.
struct Choice {
  int Hero = kMan;                // who acts
  int Skill = -1;                 // row of the technique or spell, from 1
  Targets Struck = Targets::One;  // whom that spell strikes among the enemies
  int Slot = -1;                  // the enemy's slot, from 1
  int BagSlot = -2;               // the item's slot in the bag, from 0
  int Receiver = -2;              // who gets it, 0 or 1
};

}  // namespace orvane
